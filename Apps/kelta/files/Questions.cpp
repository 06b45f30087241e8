#include "Questions.h"

#include "FilePaths.h"

#include "Gui/Translator.h"
#include "projectfile/ProjectStore.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QPushButton>

#include <algorithm>

namespace desktop {

int Questions::ask(const Question& question, const Choices& choices) const
{
    QMessageBox box(question.icon, question.title, question.text, QMessageBox::NoButton, &m_parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.details);
    std::vector<QAbstractButton*> buttons;
    buttons.reserve(choices.size());
    for (const auto& [label, role] : choices)
        buttons.push_back(box.addButton(label, role));
    box.setDefaultButton(
        static_cast<QPushButton*>(question.preferred == Choice::First ? buttons.front() : buttons.back()));
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return static_cast<int>(chosen != buttons.end() ? chosen - buttons.begin() : buttons.end() - buttons.begin() - 1);
}

void Questions::complain(const QString& title, const QString& text) const
{
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, &m_parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool Questions::mayUse(projectfile::FileLock& lock, const QString& path) const
{
    if (lock.tryLock() || lock.holder().isEmpty())
        return true;
    const QString inUse = tr("\"%1\" is in use by %2.").arg(shownPath(path), lock.holder());
    const QString danger = tr("If both programs save the file, the later save replaces the earlier one.");
    if (lock.isHeldElsewhere()) {
        if (m_foreignLocks == ForeignLocks::Ask && !mayTakeOver(inUse, danger))
            return false;
        // If the lock file cannot be replaced, the file is used without a lock.
        static_cast<void>(lock.takeOver());
        return true;
    }
    const Question question{QMessageBox::Warning, tr("File in use"), inUse, danger, Choice::Last};
    return ask(question, {{tr("&Use anyway"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

bool Questions::mayTakeOver(const QString& inUse, const QString& danger) const
{
    const Question question{QMessageBox::Warning, tr("File in use"), inUse,
                            tr("If this program no longer runs, take over its lock. If it runs:") + QLatin1Char(' ') +
                                danger,
                            Choice::Last};
    return ask(question, {{tr("&Take over"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

bool Questions::mayReplace(const QString& path, Difference difference) const
{
    const QString time =
        Gui::Translator::instance()->locale().toString(QFileInfo(path).lastModified(), QLocale::ShortFormat);
    const QString text = difference == Difference::OlderThanRecoveredProject
                             ? tr("\"%1\" was last changed on %2, before the project was recovered.")
                             : tr("\"%1\" has been changed by another program, on %2.");
    const Question question{QMessageBox::Warning, tr("Save project"), text.arg(shownPath(path), time),
                            tr("Replacing the file deletes its present content.")};
    return ask(question, {{tr("&Replace"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

Questions::ClosingChoice Questions::askBeforeClosing(const QString& projectName, Unsaved unsaved) const
{
    const QString ofEditors = tr("Changes in open editors have not been applied.");
    Question question{QMessageBox::Question, tr("Unsaved changes"), ofEditors, {}};
    if (unsaved.inProject) {
        question.text = tr("The changes of the project \"%1\" have not been saved.").arg(projectName);
        question.details = unsaved.inEditors ? ofEditors : QString();
    }
    if (unsaved.inEditors)
        question.details = (question.details + QLatin1Char(' ') + tr("\"Save\" applies them first.")).trimmed();
    return static_cast<ClosingChoice>(ask(question, {{tr("&Save"), QMessageBox::AcceptRole},
                                                     {tr("&Discard"), QMessageBox::DestructiveRole},
                                                     {tr("Cancel"), QMessageBox::RejectRole}}));
}

bool Questions::mayImport(const QString& path, const QString& projectName) const
{
    const Question question{QMessageBox::Question, tr("Open project"),
                            tr("\"%1\" is an exchange document, not a project file.").arg(shownPath(path)),
                            projectName.isEmpty() ? tr("Import its content into a new project?")
                                                  : tr("Import its content into the project \"%1\"?").arg(projectName)};
    return ask(question, {{tr("&Import"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

Questions::RecoveryChoice Questions::askAboutCopies(const QStringList& times) const
{
    const Question question{QMessageBox::Question, tr("Recovery"), tr("The program ended before projects were saved."),
                            tr("There are copies from %1.").arg(times.join(QStringLiteral(", ")))};
    return static_cast<RecoveryChoice>(ask(question, {{tr("&Recover"), QMessageBox::AcceptRole},
                                                      {tr("&Discard"), QMessageBox::DestructiveRole},
                                                      {tr("Later"), QMessageBox::RejectRole}}));
}

} // namespace desktop
