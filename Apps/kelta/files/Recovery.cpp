#include "Recovery.h"

#include "FilePaths.h"
#include "Opening.h"
#include "ProjectRecording.h"
#include "Questions.h"
#include "Sessions.h"

#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "kelta/UnappliedEdits.h"

#include <exception>
#include <memory>
#include <utility>

namespace desktop {

void Recovery::keepCopies()
{
    for (Obj::Project* const project : Obj::Application::get_projects()) {
        Session* const session = m_sessions.find(*project);
        if (session == nullptr)
            continue;
        try {
            updateCopy(*project, *session);
        } catch (...) {
            // No message box, since the user has not asked for the copy.
            Kelta::MessageLog::warning(tr("No copy for recovery could be kept: %1").arg(Kelta::currentExceptionText()));
        }
    }
}

void Recovery::updateCopy(Obj::Project& project, Session& session)
{
    Json::Value edits = recordUnapplied(m_mainWindow, project);
    if (!session.isModified && edits.isNull())
        session.forgetCopy();
    else if (session.isCopyDue || edits != session.editsInCopy)
        keepCopy(project, session, std::move(edits));
}

void Recovery::keepCopy(Obj::Project& project, Session& session, Json::Value edits)
{
    projectfile::ProjectRecord record = recordProject(project, session.kept);
    record.recoveredFile = session.path.toStdString();
    record.unappliedEdits = edits;
    const std::string text = projectfile::writeProject(record);
    auto first = session.copy == nullptr ? std::make_unique<RecoveryCopy>() : nullptr;
    (first != nullptr ? *first : *session.copy).write(text);
    if (first != nullptr)
        session.copy = std::move(first);
    session.editsInCopy = std::move(edits);
    session.isCopyDue = false;
}

void Recovery::offer()
{
    using Choice = Questions::RecoveryChoice;
    std::vector<RecoveryCopy> copies = RecoveryCopy::findAbandoned();
    if (copies.empty())
        return;
    QStringList times;
    for (const RecoveryCopy& copy : copies)
        times << Gui::Translator::instance()->locale().toString(copy.time(), QLocale::ShortFormat);
    const Choice choice = m_questions.askAboutCopies(times);
    for (RecoveryCopy& copy : copies)
        if (choice == Choice::Discard || (choice == Choice::Recover && recover(copy)))
            copy.remove();
}

bool Recovery::recover(RecoveryCopy& copy)
{
    try {
        return recoverProject(copy);
    } catch (const std::exception& error) {
        m_questions.complain(tr("Recovery"), tr("\"%1\" cannot be recovered.").arg(shownPath(copy.path())) +
                                                 QLatin1Char('\n') + QString::fromUtf8(error.what()));
    }
    return false;
}

bool Recovery::recoverProject(RecoveryCopy& copy)
{
    projectfile::ProjectRecord record = projectfile::readProject(copy.read());
    const QString path = QString::fromStdString(record.recoveredFile.value_or(std::string()));
    // A copy that is not recovered now is offered again.
    if (!Opening::mayOpen(record, path.isEmpty() ? copy.path() : path))
        return false;
    Obj::Project* const project = m_opening.makeProject(record, copy.path());
    if (project == nullptr)
        return false;
    Session& session = *m_sessions.find(*project);
    // If there are two copies of a file, only one of them can be saved in that file.
    if (!path.isEmpty() && m_sessions.findOpen(path) == nullptr) {
        session.path = path;
        session.takeLock();
    }
    session.isRecovered = true;
    session.isModified = true;
    m_sessions.noteOpened(*project);
    showUnapplied(*project, record.unappliedEdits);
    // The caller deletes the old copy only if a new one has been written.
    keepCopies();
    m_mainWindow.updateCommands();
    return !session.isCopyDue;
}

} // namespace desktop
