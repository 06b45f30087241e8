#include "FilesTesting.h"

#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>

#include <map>
#include <stdexcept>
#include <utility>

namespace vxtest {

namespace {

constexpr int nameColumn = 1;
constexpr int valueColumn = 2;
constexpr std::int32_t modulusId = 5;

QDir recoveryFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/recovery"));
}

} // namespace

Answers::Answers(QStringList buttons) : m_buttons(std::move(buttons))
{
    connect(&m_timer, &QTimer::timeout, this, &Answers::answer);
    m_timer.start(1);
}

Answers::~Answers()
{
    EXPECT_EQ(m_buttons.join(", ").toStdString(), "") << "not asked for";
    EXPECT_EQ(m_unexpected, 0) << m_boxes.join("\n").toStdString();
}

void Answers::answer()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const auto* const buttons = dialog != nullptr ? dialog->findChild<QDialogButtonBox*>() : nullptr;
    if (buttons == nullptr || !dialog->isVisible())
        return;
    const auto* const box = qobject_cast<QMessageBox*>(dialog);
    m_boxes << dialog->windowTitle() + QStringLiteral(": ") +
                   (box != nullptr ? box->text() : dialog->findChild<QLabel*>()->text());
    m_preferred = box != nullptr && box->defaultButton() != nullptr ? box->defaultButton()->text() : QString();
    const QString wanted = m_buttons.isEmpty() ? QString() : m_buttons.takeFirst();
    for (QAbstractButton* const button : buttons->buttons())
        if (!wanted.isEmpty() && button->text().remove(QLatin1Char('&')) == wanted)
            return button->click();
    ++m_unexpected;
    dialog->close();
}

FilesWindow::FilesWindow() : window(std::make_unique<Gui::MainWindow>())
{
    startFiles();
    desktop::addFileCommands(Gui::GuiApplication::Instance->get_command_manager(), *files);
    window->setAcceptDrops(true);
    window->installEventFilter(new desktop::FileDrops(*files, *window));
    window->setWorkbench("Gui::StdSimModule");
    window->show();
}

FilesWindow::~FilesWindow()
{
    desktop::FileService::setInstance(nullptr);
    history().clear();
    Obj::Application::instance().closeAllProjects();
    Gui::TreeSelectionSingleton::instance().clear();
}

bool FilesWindow::run(const char* command)
{
    return Gui::GuiApplication::Instance->get_command_manager().runCommand(command);
}

bool FilesWindow::run(const char* command, const QString& file)
{
    Gui::FileDialog::answerNext(file);
    return run(command);
}

Files::Files()
{
    initMat();
    initMatGui();
    desktop::registerMaterialFiles();
    desktop::registerMaterialContributions(*Gui::GuiApplication::Instance);
    new desktop::EditorWatch(*window);
    window->setWorkbench("MatGui::SimModule");
}

Files::~Files() = default;

Mat::DocumentMaterial& Files::newProject()
{
    if (!vxMsg::MessageProxy::instance().newProject("Mat::DocumentMaterial", "Materials"))
        throw std::logic_error("a project was not made");
    return *currentProject();
}

bool Files::closeProject()
{
    Gui::TreeSelectionSingleton::instance().setSelection({currentProject()}, {});
    return run("Mat_DelDoc");
}

Mat::MaterialObject& Files::addMaterial(const std::string& label)
{
    if (!vxMsg::MessageProxy::instance().addObject(currentProject()->get_name(), "Mat::MaterialObject", label))
        throw std::logic_error("a material was not added");
    Mat::MaterialObject* const object = findMaterial(label);
    object->initCMaterial(vxMat::eMaterialType::StructuralSteel);
    return *object;
}

Mat::DocumentMaterial* Files::currentProject()
{
    return dynamic_cast<Mat::DocumentMaterial*>(Obj::Application::get_current_project());
}

Mat::MaterialObject* Files::findMaterial(const std::string& label)
{
    for (Obj::ProjectObject* const object : currentProject()->getObjects())
        if (object->label.getValue() == label)
            return dynamic_cast<Mat::MaterialObject*>(object);
    return nullptr;
}

Gui::MDIWindow& Files::editModulus(Mat::MaterialObject& object, const QString& text)
{
    Gui::GuiApplication::Instance->get_view_feeder(&object)->setEdit(0);
    Gui::MDIWindow& editor = *window->get_active_mdi_window();
    QAbstractItemModel& rows = *editor.findChild<QTableView*>(QStringLiteral("tableView"))->model();
    for (int row = 0; row < rows.rowCount(); ++row)
        if (rows.index(row, nameColumn).data() == QStringLiteral("Young's modulus"))
            rows.setData(rows.index(row, valueColumn), text);
    return editor;
}

double Files::modulusOf(const Mat::MaterialObject& object)
{
    double number = 0;
    EXPECT_TRUE(object.getCMaterial()->getPropertyValue(modulusId, number));
    return number;
}

QByteArray FilesWindow::contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void FilesWindow::writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
}

QStringList FilesWindow::copies()
{
    QStringList paths;
    for (const QString& name : recoveryFolder().entryList({QStringLiteral("*.vxmat")}, QDir::Files))
        paths << recoveryFolder().filePath(name);
    return paths;
}

void FilesWindow::crash()
{
    std::map<QString, QByteArray> left;
    for (const QString& copy : copies())
        left[copy] = contentOf(copy);
    window->closeAllWindows();
    desktop::FileService::setInstance(nullptr);
    history().clear();
    Obj::Application::instance().closeAllProjects();
    for (const auto& [copy, content] : left)
        writeFile(copy, content);
    startFiles();
}

void FilesWindow::startFiles()
{
    auto service = std::make_unique<desktop::ProjectFiles>(*window, desktop::ProjectFiles::Options());
    files = service.get();
    desktop::FileService::setInstance(std::move(service));
}

} // namespace vxtest
