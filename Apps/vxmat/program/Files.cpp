#include "program/Files.h"

#include "program/Answer.h"
#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/json/NumberWords.h"

#include <QFile>
#include <QFileInfo>
#include <json/writer.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

namespace commandline {

namespace {

[[noreturn]] void fail(const std::string& path, const QString& reason)
{
    throw Failure(path + ": " + reason.toStdString());
}

/// Returns the name of a file for Qt. Refuses a name that Qt cannot represent, because Qt would use another file. Qt
/// treats a name that begins with a colon as a resource, so the function puts "./" before it.
QString toQString(const std::string& path)
{
    if (path.empty())
        throw Failure("the name of a file is empty");
    const QString name = QFile::decodeName(path.c_str());
    if (QFile::encodeName(name).toStdString() != path)
        fail(path, QStringLiteral("the name is not UTF-8"));
    return name.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + name : name;
}

/// Returns whether an input with this beginning is certainly no JSON document.
bool cannotBeJson(std::string_view beginning)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (beginning.substr(0, mark.size()) == mark)
        beginning.remove_prefix(mark.size());
    const std::size_t first = beginning.find_first_not_of(" \t\r\n");
    return beginning.find('\0') != std::string_view::npos ||
           (first != std::string_view::npos &&
            std::string_view("{[/").find(beginning[first]) == std::string_view::npos);
}

/// Returns whether an input with this beginning is certainly not wanted: reading it to the end may take for ever.
bool isHopeless(const std::string& beginning, Content kind)
{
    if (kind == Content::Any || !cannotBeJson(beginning))
        return false;
    return kind == Content::Json || !deckFormatOf(beginning);
}

/// Reads an input of unknown length.
std::string readAll(const std::string& path, QFile& file, Content kind)
{
    constexpr qint64 blockSize = 1 << 20;
    std::string content;
    std::string block(blockSize, '\0');
    qint64 count = 0;
    while (content.size() <= vxjson::longestText && (count = file.read(block.data(), blockSize)) > 0) {
        const bool isFirst = content.empty();
        content.append(block, 0, static_cast<std::size_t>(count));
        if (isFirst && isHopeless(content, kind))
            break;
    }
    if (count < 0)
        fail(path, file.errorString());
    if (content.size() > vxjson::longestText)
        fail(path, QStringLiteral("the input is longer than 2 GiB"));
    return content;
}

/// Returns the open file of this process that a path such as /dev/stdout or /dev/fd/3 means. Opening such a file again
/// by its name would delete its content.
std::optional<int> descriptorOf(const std::string& path)
{
    static constexpr std::array<std::pair<std::string_view, int>, 3> names{
        {{"/dev/stdin", 0}, {"/dev/stdout", 1}, {"/dev/stderr", 2}}};
    for (const auto& [name, descriptor] : names) {
        if (path == name)
            return descriptor;
    }
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        int descriptor = 0;
        const char* const end = path.data() + path.size();
        if (path.rfind(folder, 0) == 0 && std::from_chars(path.data() + folder.size(), end, descriptor).ptr == end)
            return descriptor;
    }
    return std::nullopt;
}

/// Writes to a file that is open already.
void writeToOpen(const std::string& path, int descriptor, const std::string& text)
{
    const auto size = static_cast<qint64>(text.size());
    QFile file;
    if (!file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text.data(), size) != size)
        fail(path, file.errorString());
}

void writeToDevice(const std::string& path, const QString& name, const std::string& text)
{
    const auto size = static_cast<qint64>(text.size());
    QFile device(name);
    if (!device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || device.write(text.data(), size) != size)
        fail(path, device.errorString());
}

/// Writes to a target that cannot be replaced like a file: an open file, a device, a pipe. Returns false without
/// writing for any other target.
bool writeDirectly(const std::string& path, const std::string& text)
{
    if (path == standardStream) {
        writeStandardOutput(text);
        return true;
    }
    if (const auto descriptor = descriptorOf(path)) {
        writeToOpen(path, *descriptor, text);
        return true;
    }
    const QString name = toQString(path);
    const QFileInfo info(name);
    if (info.isDir())
        fail(path, QStringLiteral("Is a directory"));
    if (info.exists() && !info.isFile()) {
        writeToDevice(path, name, text);
        return true;
    }
    if (!QFileInfo(info.path()).exists())
        fail(path, QStringLiteral("No such file or directory"));
    return false;
}

/// Takes the lock of a project. If no lock file can be made, the project cannot be written either, and writing reports
/// the reason.
void lockProject(const std::string& path, projectfile::FileLock& lock, Existing existing)
{
    if (lock.tryLock() || (existing == Existing::Replace && lock.takeOver()))
        return;
    const QString holder = lock.holder();
    if (holder.isEmpty())
        return;
    const QString hint = lock.isHeldElsewhere()
                             ? QStringLiteral("; if this program no longer runs, --force takes over its lock")
                             : QString();
    fail(path, QStringLiteral("another program has it open: %1%2").arg(holder, hint));
}

/// Calls a function of projectfile and converts a StoreError, whose message begins with the name of the file too.
template <class Work>
auto fromStore(const Work& work)
{
    try {
        return work();
    } catch (const projectfile::StoreError& error) {
        throw Failure(error.what());
    }
}

} // namespace

bool isFile(const std::string& argument)
{
    return argument == standardStream || argument.find_first_of("/.") != std::string::npos ||
           QFile::exists(QFile::decodeName(argument.c_str()));
}

std::string readFile(const std::string& path, Content content)
{
    if (path == standardStream) {
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly))
            fail("standard input", input.errorString());
        return readAll("standard input", input, content);
    }
    const QString name = toQString(path);
    const QFileInfo info(name);
    if (info.isDir())
        fail(path, QStringLiteral("Is a directory"));
    if (!info.exists() || info.isFile())
        return fromStore([&] { return projectfile::readFile(QFile::decodeName(path.c_str())); });
    const auto descriptor = descriptorOf(path);
    if (!descriptor)
        fail(path, QStringLiteral("this is a device or a pipe; a file is needed, or \"-\" for standard input"));
    QFile opened;
    if (!opened.open(*descriptor, QIODevice::ReadOnly))
        fail(path, opened.errorString());
    return readAll(path, opened, content);
}

std::optional<vxDecks::Format> deckFormatOf(std::string_view beginning)
{
    return cannotBeJson(beginning) ? vxDecks::recognisedFormat(beginning.substr(0, vxDecks::recognisedLength))
                                   : std::nullopt;
}

bool isProjectFile(const std::string& path)
{
    if (descriptorOf(path) || !QFileInfo(toQString(path)).isFile())
        return false;
    const auto tree = vxjson::JsonTree::read(readFile(path), vxjson::JsonDialect::WithComments);
    return projectfile::isProject(tree.root());
}

vxjson::JsonTree parseDocument(const std::string& path, const std::string& text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos)
        throw Failure(path + ": the file is empty; a JSON document is needed");
    auto tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::WithComments);
    if (tree.error())
        throw Failure(path + ": " + describe(*tree.error()));
    if (!tree.root().isObject())
        throw Failure(path + ": not an exchange document: a JSON object is needed");
    return tree;
}

void writeFile(const std::string& path, const std::string& text)
{
    if (!writeDirectly(path, text))
        fromStore([&] { projectfile::writeFile(QFile::decodeName(path.c_str()), text); });
}

void writeProjectFile(const std::string& path, const std::string& text, Existing existing)
{
    if (writeDirectly(path, text))
        return;
    fromStore([&] {
        const QString name = QFile::decodeName(path.c_str());
        projectfile::FileLock lock(name);
        lockProject(path, lock, existing);
        if (existing == Existing::Keep && QFileInfo::exists(name))
            fail(path, QStringLiteral("this file exists already; give another name, or --force to replace it"));
        projectfile::writeFile(name, text);
    });
}

void changeProjectFile(const std::string& path, const std::function<std::string(const std::string&)>& change,
                       Existing existing)
{
    const QString name = toQString(path);
    if (path == standardStream || (QFileInfo::exists(name) && !QFileInfo(name).isFile()))
        fail(path, QStringLiteral("this file is changed in place; the path of a regular file is needed"));
    fromStore([&] {
        projectfile::FileLock lock(name);
        lockProject(path, lock, existing);
        projectfile::writeFile(name, change(projectfile::readFile(name)));
    });
}

void requireAnotherFile(const std::string& input, const std::string& output)
{
    if (input == standardStream || output == standardStream)
        return;
    const QFileInfo read(toQString(input));
    const QFileInfo written(toQString(output));
    if (read.isFile() && read.canonicalFilePath() == written.canonicalFilePath())
        throw Failure(output + ": this file is an input too and would be overwritten; give another output file");
}

void writeStandardOutput(const std::string& text)
{
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0)
        throw Failure(std::string("standard output: ") + std::strerror(errno));
}

std::string printable(const std::string& text)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // U+0080 to U+009F are control characters too. Their second byte is their number.
        const bool isTwoBytes =
            text[i] == '\xC2' && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0U;
        const auto byte = static_cast<unsigned char>(text[isTwoBytes ? ++i : i]);
        if (byte >= 0x20U && byte != 0x7FU && !isTwoBytes) {
            shown += text[i];
        } else {
            shown += "\\u00";
            shown += digits[byte >> 4U];
            shown += digits[byte & 0xFU];
        }
    }
    return shown;
}

std::string excerpt(const std::string& text)
{
    constexpr std::size_t longest = 60;
    if (text.size() <= longest)
        return text;
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    std::size_t end = longest;
    while (end > 0 && continues(text[end]))
        --end;
    return text.substr(0, end) + "...";
}

Json::Value toJsonNumber(double number)
{
    const std::string_view word = vxjson::wordOfNumber(number);
    return word.empty() ? Json::Value(number) : Json::Value(std::string(word));
}

std::string toJsonText(const Json::Value& document)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "  ";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, document) + "\n";
}

} // namespace commandline
