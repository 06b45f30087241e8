#pragma once

#include <json/value.h>

#include <string>

namespace vxmat {

/// What a user gives for standard input or output in place of a file.
inline constexpr const char* standardStream = "-";

/// The whole content of a file, or of standard input.
/// \throws Failure when it cannot be read
std::string readFile(const std::string& path);

/// The JSON document in a file: an object.
/// \throws Failure when it cannot be read, is not JSON (with line and column) or not an object
Json::Value readDocument(const std::string& path);

/// The document in a text that was read from `path`.
/// \throws Failure as readDocument does
Json::Value parseDocument(const std::string& path, const std::string& text);

/// Writes a file whole or not at all: beside it first, then by renaming. What is no regular file (a device, a pipe) and
/// what this process has open already (/dev/stdout, /dev/fd/3) is written directly. Links and permissions stay.
/// \throws Failure when it cannot be written; an existing file is then as it was
void writeFile(const std::string& path, const std::string& text);

/// Writes to standard output.
/// \throws Failure when that fails, as on a full disk
void writeStandardOutput(const std::string& text);

/// A text from a document or a command line as it may be printed on one line: control characters in it, which could
/// look like lines of ours or steer the terminal, as \u001b.
std::string printable(const std::string& text);

/// A document as --json prints it: members by key, indented by two blanks, texts in UTF-8.
std::string toJsonText(const Json::Value& document);

} // namespace vxmat
