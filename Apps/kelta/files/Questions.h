#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

class QWidget;

namespace projectfile {
class FileLock;
} // namespace projectfile

namespace desktop {

/// The message boxes about project files.
class Questions
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    /// What happens if a program on another computer has the lock of a file.
    enum class ForeignLocks
    {
        Ask,
        TakeOver, ///< without a question
    };
    /// `parent` is the parent of the boxes.
    Questions(QWidget& parent, ForeignLocks locks) : m_parent(parent), m_foreignLocks(locks) {}

    /// Reports an error to the user.
    void complain(const QString& title, const QString& text) const;

    /// Takes the lock of a file. If a program on this computer has it, asks the user whether to use the file anyway; if a
    /// program on another computer has it, takes it over as ForeignLocks says. Returns whether the file may be used.
    bool mayUse(projectfile::FileLock& lock, const QString& path) const;

    /// The reason why a file differs from the project as this program last read or wrote it.
    enum class Difference
    {
        ChangedByAnotherProgram,
        OlderThanRecoveredProject,
    };
    /// Asks whether the project may replace the content of a file that differs.
    bool mayReplace(const QString& path, Difference difference) const;

    /// The places of changes that would be lost.
    struct Unsaved
    {
        bool inProject = false;
        bool inEditors = false;
    };
    enum class ClosingChoice
    {
        Save,
        Discard,
        Cancel,
    };
    /// Asks what to do with the changes of a project before it is closed.
    ClosingChoice askBeforeClosing(const QString& projectName, Unsaved unsaved) const;

    /// Asks whether to import the exchange document `path`, which was given in place of a project file, into the project
    /// of this name; into a new project if the name is empty.
    bool mayImport(const QString& path, const QString& projectName) const;

    enum class RecoveryChoice
    {
        Recover,
        Discard,
        Later,
    };
    /// Asks what to do with copies for recovery. `times` contains their times.
    RecoveryChoice askAboutCopies(const QStringList& times) const;

private:
    bool mayTakeOver(const QString& inUse, const QString& danger) const;

    using Choices = std::vector<std::pair<QString, QMessageBox::ButtonRole>>;
    /// The choice that the Return key takes.
    enum class Choice
    {
        First,
        Last,
    };
    struct Question
    {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QString details;
        Choice preferred = Choice::First;
    };
    /// Returns the index of the choice; the index of the last choice if the user closes the box.
    int ask(const Question& question, const Choices& choices) const;

    QWidget& m_parent;
    ForeignLocks m_foreignLocks;
};

} // namespace desktop
