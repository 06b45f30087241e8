#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What fuzzers of files and programs need. Inputs may name any file, so such a fuzzer works in an empty folder of its
/// own, and cannot name a file outside.
namespace vxfuzz {

/// The bytes of an input as text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Makes a new empty folder the current folder of the process and the home of its settings. Must be called once, before
/// the first input. The folder is removed when the process ends normally.
void enterOwnFolder();

/// Removes all files in the folder of enterOwnFolder().
void emptyOwnFolder();

/// Returns the text with a harmless character in place of each slash, so that no path in it leads out of the folder.
std::string withoutSlashes(std::string_view text);

/// Writes a file in the current folder.
void writeFile(const QString& name, std::string_view content);

/// Keeps the offscreen platform from being a display, and Qt from writing messages.
void useNoDisplay();

} // namespace vxfuzz
