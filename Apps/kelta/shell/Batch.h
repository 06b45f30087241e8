#pragma once

#include "kelta/KeltaShellExport.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>

namespace desktop {

/// Runs lists of commands in the application, one a line, as a user would give them one after the other.
///
/// A line is the name of a command or verb and its arguments, separated by blanks; an argument with blanks stands in
/// double quotes. Empty lines and lines that begin with "#" are passed over. Verbs are what has no command of its own;
/// docs/kelta.md lists them.
///
/// Message boxes that come up are written to standard error, and answered with OK or Yes; one that has neither with
/// discarding, as a list says itself what is to be saved; and one without that either is closed. A command fails when it
/// does not exist, cannot be applied now, reports an error to the message log or shows a critical box or a warning.
class KELTA_SHELL_EXPORT Batch
{
public:
    /// Answers what went wrong, absent when nothing did.
    using Verb = std::function<std::optional<QString>(const QStringList& arguments)>;

    /// Adds a verb; one of the same name is replaced.
    static void registerVerb(const QString& name, Verb verb);

    /// Runs the commands of a text that was read from `fileName`. Stops at the first line that fails and writes
    /// "FILE:LINE: what is wrong" to standard error. Answers the exit status: 0 when all ran, 1 otherwise.
    static int run(const QString& text, const QString& fileName);
    /// Likewise for a file, or standard input for "-"; 2 when it cannot be read.
    static int runFile(const QString& path);
    /// Runs one command or verb as a line of a list does. Answers what went wrong, absent when nothing did.
    static std::optional<QString> runCommand(const QString& name, const QStringList& arguments);

private:
    static std::optional<QString> runLine(const QString& line);
    static std::optional<QString> runOther(const QString& name, const QStringList& arguments);
};

} // namespace desktop
