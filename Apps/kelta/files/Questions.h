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

/// What the files ask and tell the user in message boxes.
class Questions
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    /// The boxes are in front of `parent`.
    explicit Questions(QWidget& parent) : m_parent(parent) {}

    void complain(const QString& title, const QString& text) const;

    /// Takes the lock of a file, and asks if another program has it. Returns whether the file may be used.
    bool mayUse(projectfile::FileLock& lock, const QString& path) const;

    /// Why a file is not as this program left it.
    enum class Difference
    {
        ChangedByAnotherProgram,
        OlderThanRecoveredProject,
    };
    bool mayReplace(const QString& path, Difference difference) const;

    /// What would be lost.
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
    ClosingChoice askBeforeClosing(const QString& projectName, Unsaved unsaved) const;

    enum class RecoveryChoice
    {
        Recover,
        Discard,
        Later,
    };
    /// `times` says when the copies were made.
    RecoveryChoice askAboutCopies(const QStringList& times) const;

private:
    using Choices = std::vector<std::pair<QString, QMessageBox::ButtonRole>>;
    struct Question
    {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QString details;
    };
    /// Returns the index of the choice; of the last one if the user closes the box.
    int ask(const Question& question, const Choices& choices) const;

    QWidget& m_parent;
};

} // namespace desktop
