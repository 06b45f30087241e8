#include "kelta/Batch.h"

#include "PropertyVerbs.h"

#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>

#include <utility>

namespace desktop {

namespace {

QTextStream& standardError()
{
    static QTextStream stream(stderr);
    return stream;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::Batch", text);
}

/// Presses buttons of the message boxes that are shown during its lifetime, because there is no user.
class BoxAnswers : public QObject
{
public:
    BoxAnswers()
    {
        connect(&m_timer, &QTimer::timeout, this, &BoxAnswers::answer);
        m_timer.start(0);
    }

    /// The text of the first warning or critical box; empty if there was none.
    const QString& failure() const { return m_failure; }

private:
    void answer()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        const QString text = box->windowTitle() + QStringLiteral(": ") + box->text();
        standardError() << text << '\n';
        standardError().flush();
        const bool isFailure = box->icon() == QMessageBox::Critical || box->icon() == QMessageBox::Warning;
        if (isFailure && m_failure.isEmpty())
            m_failure = text;
        for (const auto button : {QMessageBox::Yes, QMessageBox::Ok})
            if (QAbstractButton* const found = box->button(button))
                return found->click();
        for (QAbstractButton* const button : box->buttons())
            if (box->buttonRole(button) == QMessageBox::DestructiveRole)
                return button->click();
        box->reject();
    }

    QTimer m_timer;
    QString m_failure;
};

std::optional<QString> selectLabels(const QStringList& labels)
{
    std::vector<Obj::ProjectObject*> objects;
    const Obj::Project* const project = Obj::Application::get_current_project();
    for (const QString& label : labels) {
        const std::size_t before = objects.size();
        if (project != nullptr)
            for (Obj::ProjectObject* const object : project->getObjects())
                if (object->label.getValue() == label.toStdString())
                    objects.push_back(object);
        if (objects.size() == before)
            return tr("nothing in the current project is labelled \"%1\"").arg(label);
    }
    Gui::TreeSelectionSingleton::instance().setSelection({}, objects);
    return std::nullopt;
}

std::optional<QString> selectProject(const QStringList& arguments)
{
    Obj::Project* const project = arguments.size() == 1
                                      ? Obj::Application::instance().get_project(arguments[0].toStdString())
                                      : Obj::Application::get_current_project();
    if (project == nullptr)
        return tr("there is no such project");
    Gui::TreeSelectionSingleton::instance().setSelection({project}, {});
    return std::nullopt;
}

std::optional<QString> takeScreenshot(const QStringList& arguments)
{
    Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    if (arguments.size() != 1 || window == nullptr)
        return tr("one file name is needed");
    QCoreApplication::processEvents();
    window->updateCommands();
    QCoreApplication::processEvents();
    if (!window->grab().save(arguments[0], "PNG"))
        return tr("%1 cannot be written").arg(arguments[0]);
    return std::nullopt;
}

std::optional<QString> saveDatabase(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("no argument is taken");
    QTextStream(stdout) << QString::fromStdString(Obj::Application::instance().save_jsonDB().toStyledString());
    return std::nullopt;
}

std::optional<QString> handOver(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("no argument is taken");
    const Obj::Project* const project = Obj::Application::get_current_project();
    if (project == nullptr)
        return tr("no project is open");
    // If the request fails, the reason is in the message log, and Batch fails with this reason.
    vxMsg::MessageProxy::instance().handOver(project->get_name());
    return std::nullopt;
}

std::optional<QString> say(const QStringList& arguments)
{
    QTextStream(stdout) << arguments.join(QLatin1Char(' ')) << '\n';
    return std::nullopt;
}

std::map<QString, Batch::Verb>& verbs()
{
    static std::map<QString, Batch::Verb> registered = {
        {QStringLiteral("select"), selectLabels},   {QStringLiteral("select-project"), selectProject},
        {QStringLiteral("label"), setLabel},        {QStringLiteral("screenshot"), takeScreenshot},
        {QStringLiteral("database"), saveDatabase}, {QStringLiteral("say"), say},
        {QStringLiteral("property"), setProperty},  {QStringLiteral("properties"), printProperties},
        {QStringLiteral("collect"), handOver},
    };
    return registered;
}

std::optional<QString> guarded(const std::function<std::optional<QString>()>& run)
{
    try {
        return run();
    } catch (...) {
        return Kelta::currentExceptionText();
    }
}

} // namespace

void Batch::registerVerb(const QString& name, Verb verb)
{
    verbs()[name] = std::move(verb);
}

int Batch::run(const QString& text, const QString& fileName)
{
    int number = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        ++number;
        if (const auto failure = guarded([&line] { return runLine(line); })) {
            standardError() << fileName << ':' << number << ": " << *failure << '\n';
            standardError().flush();
            return 1;
        }
    }
    return 0;
}

int Batch::runFile(const QString& path)
{
    QFile file(path);
    const bool opened = path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                   : file.open(QIODevice::ReadOnly | QIODevice::Text);
    const QByteArray text = opened ? file.readAll() : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError) {
        standardError() << path << ": " << file.errorString() << '\n';
        standardError().flush();
        return 2;
    }
    return run(QString::fromUtf8(text), path);
}

std::optional<QString> Batch::runLine(const QString& line)
{
    QStringList words = QProcess::splitCommand(line);
    if (words.isEmpty() || line.trimmed().startsWith(QLatin1Char('#')))
        return std::nullopt;
    const QString name = words.takeFirst();
    return runCommand(name, words);
}

std::optional<QString> Batch::runCommand(const QString& name, const QStringList& arguments)
{
    const BoxAnswers boxes;
    const std::size_t errorsBefore = Kelta::MessageLog::instance().errorCount();
    const auto verb = verbs().find(name);
    std::optional<QString> failure = verb != verbs().end() ? verb->second(arguments) : invokeCommand(name, arguments);
    QCoreApplication::processEvents();
    // No event loop runs, so the windows that the command closed must be destroyed here.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (!failure && !boxes.failure().isEmpty())
        failure = boxes.failure();
    if (!failure && Kelta::MessageLog::instance().errorCount() != errorsBefore)
        failure = Kelta::MessageLog::instance().messages().back().text;
    return failure;
}

std::optional<QString> Batch::invokeCommand(const QString& name, const QStringList& arguments)
{
    Gui::Command* const command = Gui::GuiApplication::Instance->get_command_manager().findCommand(name.toStdString());
    if (command == nullptr)
        return tr("there is no command \"%1\"").arg(name);
    if (arguments.size() > 1)
        return tr("%1 takes at most one argument, the file that it asks for").arg(name);
    // A list has no keyboard focus; what it selects in the tree is what its commands act on.
    Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    if (window != nullptr && (command->getTypeFlags() & Gui::CommandType::onTree) != 0)
        window->set_active_mdi_window(nullptr);
    if (!command->canRun())
        return tr("%1 cannot be done now").arg(name);
    // A command that asks for a file, and has no argument, continues as if the user had cancelled the dialog.
    Gui::FileDialog::answerNext(arguments.value(0));
    return command->invoke() ? std::nullopt : std::optional(tr("%1 failed").arg(name));
}

} // namespace desktop
