#pragma once

#include <json/value.h>

#include <string>

namespace vxmat {

/// What a user gives for standard input or output in place of a file.
inline constexpr const char* standardStream = "-";

/// Whether an argument that is no name of a material means a file: one that exists, or looks like one.
bool isFile(const std::string& argument);

/// The whole content of a file, or of standard input.
/// \throws Failure when it cannot be read
std::string readFile(const std::string& path);

/// The JSON document, an object, in a text that was read from `path`.
/// \throws Failure when it is not JSON (with line and column) or not an object
Json::Value parseDocument(const std::string& path, const std::string& text);

/// Writes a file whole or not at all, as the store of projects does. What is no regular file (a device, a pipe) and what
/// this process has open already (/dev/stdout, /dev/fd/3) is written directly. Links and permissions stay.
/// \throws Failure when it cannot be written; an existing file is then as it was
void writeFile(const std::string& path, const std::string& text);

/// The same for a project file, which another program may have open: then nothing is written.
void writeProjectFile(const std::string& path, const std::string& text);

/// \throws Failure when `output` is the very file that was read as `input`: what is written there is not what stood
/// there, which would be lost
void requireAnotherFile(const std::string& input, const std::string& output);

/// Writes to standard output.
/// \throws Failure when that fails, as on a full disk
void writeStandardOutput(const std::string& text);

/// A text from a document or a command line as it may be printed on one line: control characters in it, which could
/// look like lines of ours or steer the terminal, as \u001b.
std::string printable(const std::string& text);

/// A number as --json prints it: infinite ones and what is none as the texts "Infinity", "-Infinity" and "NaN".
Json::Value toJsonNumber(double number);

/// A document as --json prints it: members by key, indented by two blanks, texts in UTF-8.
std::string toJsonText(const Json::Value& document);

} // namespace vxmat
