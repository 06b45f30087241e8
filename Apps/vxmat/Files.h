#pragma once

#include "vxMaterial/json/JsonTree.h"

#include <json/value.h>

#include <string>

namespace vxmat {

/// What a user gives in place of a file for standard input or output.
inline constexpr const char* standardStream = "-";

/// Whether an argument that is not the name of a material means a file: one that exists, or looks like one.
bool isFile(const std::string& argument);

/// Returns the whole content of a file, or of standard input.
/// \throws Failure if it cannot be read
std::string readFile(const std::string& path);

/// Returns the JSON document, an object, in a text that was read from `path`. Comments are accepted.
/// \throws Failure if it is not JSON (with line and column) or not an object
vxjson::JsonTree parseDocument(const std::string& path, const std::string& text);

/// Writes a file whole or not at all, as the store of projects does. What is not a regular file (a device, a pipe) and
/// what this process has open already (/dev/stdout, /dev/fd/3) is written directly. Links and permissions stay.
/// \throws Failure if it cannot be written; an existing file is then as it was
void writeFile(const std::string& path, const std::string& text);

/// The same for a project file. Nothing is written if another program has the file open.
void writeProjectFile(const std::string& path, const std::string& text);

/// \throws Failure if `output` is the file that was read as `input`, whose content would be lost
void requireAnotherFile(const std::string& input, const std::string& output);

/// Writes to standard output.
/// \throws Failure if that fails, as on a full disk
void writeStandardOutput(const std::string& text);

/// Returns a text from a document or a command line so that it can be printed on one line. Control characters, which
/// could look like lines of this program or control the terminal, are written as \u001b.
std::string printable(const std::string& text);

/// Returns a number as --json prints it: one that is not finite as the text "Infinity", "-Infinity" or "NaN".
Json::Value toJsonNumber(double number);

/// Returns a document as --json prints it: members by name, indented by two blanks, texts in UTF-8.
std::string toJsonText(const Json::Value& document);

} // namespace vxmat
