#pragma once

#include "vxDecks/Format.h"
#include "vxMaterial/json/JsonTree.h"

#include <json/value.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace commandline {

/// The argument that means standard input or output instead of a file.
inline constexpr const char* standardStream = "-";

/// Returns whether an argument that is not the name of a material means a file: the file exists, or the argument has a
/// slash or a dot.
bool isFile(const std::string& argument);

/// What a file that is read may contain.
enum class Content
{
    Json,       ///< reading an input of unknown length ends at the first part that cannot be JSON
    JsonOrDeck, ///< the same, but it may also be a deck
    Any
};

/// Returns the whole content of a file, of standard input, or of a file that this process has open already (/dev/stdin,
/// /dev/fd/3). Refuses other pipes and devices, because reading them may never begin or never end.
/// \throws Failure if it cannot be read, or is larger than 2 GiB
std::string readFile(const std::string& path, Content content = Content::Json);

/// Returns the format of the deck that begins with a text; absent if it may be JSON, or is of no format.
std::optional<vxDecks::Format> deckFormatOf(std::string_view beginning);

/// Returns whether a path is the path of a regular file that is a project file.
bool isProjectFile(const std::string& path);

/// Parses a text that was read from `path`. Comments are accepted. The root of the returned tree is an object.
/// \throws Failure if the text is not JSON (with line and column) or its root is not an object
vxjson::JsonTree parseDocument(const std::string& path, const std::string& text);

/// Writes a file completely or not at all, with projectfile::writeFile(). Writes directly to devices, pipes and files
/// that this process has open already (/dev/stdout, /dev/fd/3). Keeps links and permissions.
/// \throws Failure if the file cannot be written; an existing file is then unchanged
void writeFile(const std::string& path, const std::string& text);

/// What happens to a file that exists already, and to a lock of a program on another computer.
enum class Existing
{
    Keep,    ///< writing fails
    Replace, ///< the file is replaced, the lock is taken over
};

/// Writes a project file, or replaces one, like writeFile().
/// \throws Failure also if the file exists and must be kept, or if another program has it open
void writeProjectFile(const std::string& path, const std::string& text, Existing existing);

/// Replaces a project file by the text that `change` returns for its text. Other programs cannot write the file meanwhile.
/// \throws Failure as readFile() and writeProjectFile() do, or if the path is not the path of a regular file; passes on
/// what `change` throws; the file is then unchanged
void changeProjectFile(const std::string& path, const std::function<std::string(const std::string&)>& change,
                       Existing existing);

/// Checks that writing `output` does not replace the file `input`.
/// \throws Failure if both are the same file
void requireAnotherFile(const std::string& input, const std::string& output);

/// Writes to standard output.
/// \throws Failure if writing fails, for example on a full disk
void writeStandardOutput(const std::string& text);

/// Returns a text from a document or a command line for printing on one line. Replaces control characters by escapes
/// such as \u001b, because they could imitate lines of this program or control the terminal.
std::string printable(const std::string& text);

/// Returns a text from a command line for messages: of a text of more than 60 bytes the beginning, with "...".
std::string excerpt(const std::string& text);

/// Returns a number for --json. A number that is not finite becomes the text "Infinity", "-Infinity" or "NaN".
Json::Value toJsonNumber(double number);

/// Returns the text of a document for --json: members sorted by name, indented by two blanks, in UTF-8.
std::string toJsonText(const Json::Value& document);

} // namespace commandline
