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

#include <QBuffer>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTextCodec>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace desktop {

namespace {

constexpr qint64 longestList = qint64{64} << 20U;
constexpr const char* quitName = "Std_Quit";

QTextStream& standardError()
{
    static QTextStream stream(stderr);
    return stream;
}

void complain(const QString& text)
{
    standardError() << Batch::printable(text) << '\n';
    standardError().flush();
}

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::Batch", text);
}

/// Returns the text of a box without the markup that the box would not show.
QString shownText(const QMessageBox& box)
{
    const bool isRich =
        box.textFormat() == Qt::RichText || (box.textFormat() == Qt::AutoText && Qt::mightBeRichText(box.text()));
    return isRich ? QTextDocumentFragment::fromHtml(box.text()).toPlainText() : box.text();
}

QString describe(const QDialog& dialog)
{
    return tr("the dialog \"%1\" needs a user").arg(dialog.windowTitle());
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

    /// The text of the first warning or critical box, or of the first box that was closed; empty if there was none.
    const QString& failure() const { return m_failure; }

private:
    void answer()
    {
        QWidget* const modal = QApplication::activeModalWidget();
        auto* const box = qobject_cast<QMessageBox*>(modal);
        if (box == nullptr)
            return closeDialog(qobject_cast<QDialog*>(modal));
        const QString text = box->windowTitle() + QStringLiteral(": ") + shownText(*box);
        complain(text);
        const bool isFailure = box->icon() == QMessageBox::Critical || box->icon() == QMessageBox::Warning;
        if (isFailure && m_failure.isEmpty())
            m_failure = text;
        for (const auto button : {QMessageBox::Yes, QMessageBox::Ok})
            if (QAbstractButton* const found = box->button(button))
                return found->click();
        for (QAbstractButton* const button : box->buttons())
            if (box->buttonRole(button) == QMessageBox::DestructiveRole)
                return button->click();
        // The command is cancelled, so the line does not do its work.
        if (m_failure.isEmpty())
            m_failure = text;
        box->reject();
    }

    /// Closes a dialog that nobody can answer. Does nothing if there is none.
    void closeDialog(QDialog* dialog)
    {
        if (dialog == nullptr)
            return;
        if (m_failure.isEmpty())
            m_failure = describe(*dialog);
        dialog->reject();
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
            return tr("the current project has no object with the label \"%1\"").arg(label);
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
    return Batch::saveScreenshot(*window, arguments[0]);
}

std::optional<QString> saveDatabase(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    return Batch::print(QString::fromStdString(Obj::Application::instance().save_jsonDB().toStyledString()));
}

std::optional<QString> handOver(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    const Obj::Project* const project = Obj::Application::get_current_project();
    if (project == nullptr)
        return tr("no project is open");
    // If the request fails, the reason is in the message log, and Batch fails with this reason.
    vxMsg::MessageProxy::instance().handOver(project->get_name());
    return std::nullopt;
}

std::optional<QString> say(const QStringList& arguments)
{
    return Batch::print(arguments.join(QLatin1Char(' ')) + QLatin1Char('\n'));
}

std::optional<QString> quit(const QStringList& arguments)
{
    if (std::optional<QString> failure = Batch::invokeCommand(QString::fromLatin1(quitName), arguments))
        return failure;
    const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    return window != nullptr && window->isVisible() ? std::optional(tr("the program was not closed")) : std::nullopt;
}

std::map<QString, Batch::Verb>& verbs()
{
    static std::map<QString, Batch::Verb> registered = {
        {QStringLiteral("select"), selectLabels},   {QStringLiteral("select-project"), selectProject},
        {QStringLiteral("label"), setLabel},        {QStringLiteral("screenshot"), takeScreenshot},
        {QStringLiteral("database"), saveDatabase}, {QStringLiteral("say"), say},
        {QStringLiteral("property"), setProperty},  {QStringLiteral("properties"), printProperties},
        {QStringLiteral("collect"), handOver},      {QString::fromLatin1(quitName), quit},
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

/// Returns whether a line contains no command.
bool isSkipped(const QString& line)
{
    return QProcess::splitCommand(line).isEmpty() || line.trimmed().startsWith(QLatin1Char('#'));
}

/// Reads a list of commands. Returns the reason if that fails.
std::optional<QString> readList(const QString& path, QString& text)
{
    const bool isStandardInput = path == QLatin1String("-");
    const QFileInfo info(path);
    // Reading a pipe or a device may never begin or never end.
    if (!isStandardInput && info.exists() && !info.isFile())
        return tr("this is not a regular file");
    QFile file(path);
    const bool opened =
        isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly | QIODevice::Text);
    const QByteArray bytes = opened ? file.read(longestList + 1) : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError)
        return file.errorString();
    if (bytes.size() > longestList)
        return tr("the list is longer than 64 MiB");
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars != 0 || state.remainingChars != 0)
        return tr("the list is not UTF-8");
    return std::nullopt;
}

/// Returns whether a picture may replace a file: it is a picture, empty or absent. Another file may be a project.
bool mayBecomePicture(const QString& path)
{
    static const QByteArray pngSignature("\x89PNG\r\n\x1a\n");
    QFile file(path);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(pngSignature.size());
    return start.isEmpty() || start == pngSignature;
}

} // namespace

void Batch::registerVerb(const QString& name, Verb verb)
{
    verbs()[name] = std::move(verb);
}

int Batch::run(const QString& text, const QString& fileName)
{
    int number = 0;
    bool hasQuit = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        ++number;
        if (isSkipped(line))
            continue;
        const auto failure = hasQuit ? std::optional(tr("the program has been closed by Std_Quit; no line may follow"))
                                     : guarded([&line] { return runLine(line); });
        if (failure) {
            complain(QStringLiteral("%1:%2: %3").arg(fileName, QString::number(number), *failure));
            return 1;
        }
        hasQuit = QProcess::splitCommand(line).constFirst() == QLatin1String(quitName);
    }
    return 0;
}

int Batch::runFile(const QString& path)
{
    QString text;
    if (const auto failure = readList(path, text)) {
        complain(QStringLiteral("%1: %2").arg(path, *failure));
        return 2;
    }
    return run(text, path);
}

std::optional<QString> Batch::runLine(const QString& line)
{
    if (line.contains(QChar::Null))
        return tr("the line contains a zero character");
    QStringList words = QProcess::splitCommand(line);
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
    // The text of a box says more than a reason that results from it.
    if (!boxes.failure().isEmpty())
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
    const QString file = arguments.value(0);
    // A command that asks for a file, and has no argument, continues as if the user had cancelled the dialog.
    Gui::FileDialog::answerNext(file);
    const bool done = command->invoke();
    const bool asked = !Gui::FileDialog::dropAnswer();
    if (!done)
        return tr("%1 failed").arg(name);
    if (asked && file.isEmpty())
        return tr("%1 needs one argument, the name of a file").arg(name);
    if (!asked && !arguments.isEmpty())
        return tr("%1 did not use the argument \"%2\"").arg(name, file);
    return std::nullopt;
}

QString Batch::printable(const QString& text)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control && c != QLatin1Char('\n') && c != QLatin1Char('\t');
    };
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString shown;
    for (const QChar c : text)
        shown += isControl(c) ? QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0')) : QString(c);
    return shown;
}

std::optional<QString> Batch::print(const QString& text)
{
    const QByteArray bytes = printable(text).toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    errno = 0;
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return std::nullopt;
    return tr("standard output cannot be written: %1").arg(qt_error_string(errno));
}

std::optional<QString> Batch::saveScreenshot(QWidget& window, const QString& path)
{
    QByteArray picture;
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    QFile file(path);
    // Opening a pipe would wait for a reader.
    const bool isWritable = !file.exists() || QFileInfo(path).isFile();
    if (isWritable && !mayBecomePicture(path))
        return tr("%1 is not a picture and is not replaced; give another name").arg(path);
    const bool isSaved = isWritable && window.grab().save(&buffer, "PNG") && file.open(QIODevice::WriteOnly) &&
                         file.write(picture) == picture.size() && file.flush();
    return isSaved ? std::nullopt : std::optional(tr("%1 cannot be written").arg(path));
}

} // namespace desktop
