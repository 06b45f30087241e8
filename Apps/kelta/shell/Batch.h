#pragma once

#include "kelta/KeltaShellExport.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

namespace desktop {

/// Runs lists of commands in the program without a user. Each line is a command, and the lines run one after the other.
///
/// A line has the name of a command or of a verb, and its arguments, separated by blanks. An argument that contains
/// blanks is written in double quotes. Empty lines, and lines that begin with "#", are skipped. A verb is a function
/// that only lists have; docs/kelta.md lists the verbs.
///
/// The text of each message box is written to standard error. Its button Yes or OK is pressed, otherwise the button
/// that discards changes, because a list saves with commands; a box without such buttons is closed. A line fails if
/// - it contains a zero character,
/// - there is no such command, or the command cannot be applied now,
/// - the command asks for a file that the line does not name, or does not use the file that the line names,
/// - the command reports an error to the message log, shows a warning or critical box, or shows a box that is closed,
/// - its output cannot be written,
/// - it follows "Std_Quit", which ends the program.
class KELTA_SHELL_EXPORT Batch
{
public:
    /// Returns the reason if it fails.
    using Verb = std::function<std::optional<QString>(const QStringList& arguments)>;

    /// Adds a verb. It replaces a verb of the same name, and is used in place of a command of the same name.
    static void registerVerb(const QString& name, Verb verb);

    /// Runs the lines of a text that was read from `fileName`. Stops at the first line that fails, and writes
    /// "FILE:LINE: reason" to standard error. Returns the exit status: 0 if all lines ran, 1 otherwise.
    static int run(const QString& text, const QString& fileName);
    /// Reads the text from a regular file, or from standard input if the path is "-". Returns 2 if it cannot be read or
    /// is not UTF-8.
    static int runFile(const QString& path);
    /// Runs one verb or command as a line of a list does. Returns the reason if it fails.
    static std::optional<QString> runCommand(const QString& name, const QStringList& arguments);
    /// Runs a command, also if a verb has its name, which may call this. A command that asks for a file gets the
    /// argument. Returns the reason if it fails. Does not check the message log and message boxes; the caller does.
    static std::optional<QString> invokeCommand(const QString& name, const QStringList& arguments);

    /// Returns a text for a terminal: replaces control characters, except ends of lines and tabs, by escapes such as
    /// \u001b, because they could control the terminal.
    static QString printable(const QString& text);
    /// Writes a text to standard output in UTF-8, at once, as printable() returns it. Returns the reason if it fails, for
    /// example on a full disk.
    static std::optional<QString> print(const QString& text);
    /// Saves the picture of a window as a PNG file. Replaces only pictures and empty files. Returns the reason if it
    /// fails.
    static std::optional<QString> saveScreenshot(QWidget& window, const QString& path);

private:
    static std::optional<QString> runLine(const QString& line);
};

} // namespace desktop
