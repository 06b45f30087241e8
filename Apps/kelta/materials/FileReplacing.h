#pragma once

#include <QString>

class QWidget;

namespace desktop {

/// The texts of a question to the user.
struct Question
{
    QString title; ///< of the box
    QString text;
};

/// Asks a question with a button of its own for consent, in front of `parent`. In a list of commands such a question fails.
bool consent(const Question& question, const QString& button, QWidget& parent);

/// Returns whether an export may write a file. If the file is that of an open project, of this program or another one, or
/// any project file, says so and asks the question of the caller: "Replace it by an exchange document?"
bool mayReplace(const QString& path, const Question& question, QWidget& parent);

} // namespace desktop
