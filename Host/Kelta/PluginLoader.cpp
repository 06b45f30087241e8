#include "Kelta/PluginLoader.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Kelta/ModuleDescriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <cstring>
#include <elf.h>
#include <link.h>
#include <stdexcept>
#include <utility>

namespace Kelta {

namespace {

using Entry = void (*)();

QString tr(const char* text)
{
    return QCoreApplication::translate("Kelta::PluginLoader", text);
}

[[noreturn]] void fail(const QString& reason)
{
    throw std::runtime_error(reason.toStdString());
}

/// Returns the text of the exception of an entry; empty if there is none. A module should let no exception out, but a
/// broken module must not end the program.
QString whatItThrows(Entry entry)
{
    try {
        entry();
        return {};
    } catch (...) {
        return currentExceptionText();
    }
}

/// Returns the reason why an entry failed, empty if it did not: its exception, or the first error that it reported.
QString whyItFails(Entry entry)
{
    QString firstError;
    const QMetaObject::Connection listening =
        QObject::connect(&MessageLog::instance(), &MessageLog::reported, [&firstError](const LogMessage& message) {
            if (message.severity == LogMessage::Severity::Error && firstError.isNull())
                firstError = message.text.isEmpty() ? tr("an error without a text") : message.text;
        });
    const QString thrown = whatItThrows(entry);
    QObject::disconnect(listening);
    return thrown.isNull() ? firstError : thrown;
}

/// Returns whether a library is cut off: a part that the system would map lies after the end of the file. The system
/// does not check this, and ends the program when it reads such a part. Files of another format are not judged.
bool isCutOff(QFile& file)
{
    ElfW(Ehdr) header = {};
    const auto* const magic = reinterpret_cast<const char*>(header.e_ident);
    if (file.read(reinterpret_cast<char*>(&header), sizeof header) != sizeof header ||
        std::memcmp(magic, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(ElfW(Phdr)))
        return false;
    const auto size = static_cast<quint64>(file.size());
    bool isComplete = file.seek(static_cast<qint64>(header.e_phoff));
    for (unsigned part = 0; isComplete && part < header.e_phnum; ++part) {
        ElfW(Phdr) segment = {};
        isComplete = file.read(reinterpret_cast<char*>(&segment), sizeof segment) == sizeof segment &&
                     segment.p_filesz <= size && segment.p_offset <= size - segment.p_filesz;
    }
    return !isComplete;
}

/// Refuses libraries that the system must not open: opening a pipe would wait for a writer.
void refuseBrokenLibrary(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return; // the system gives the reason
    if (!info.isFile())
        fail(tr("its library %1 is not a regular file").arg(path));
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && isCutOff(file))
        fail(tr("its library %1 is incomplete").arg(path));
}

} // namespace

struct PluginLoader::Library
{
    Entry resolve(const QString& entry) { return reinterpret_cast<Entry>(file.resolve(entry.toLatin1().constData())); }

    QLibrary file;
    QStringList calledEntries;
};

/// Loads modules and the modules that they need, each once.
class PluginLoader::Run
{
public:
    explicit Run(PluginLoader& loader) : m_loader(loader) { findModules(); }

    void loadAll();
    void load(const QString& name);
    Outcome takeOutcome() { return std::move(m_outcome); }

private:
    void findModules();
    void tryToLoad(const QString& name, const QString& file);
    void loadNeeds(const ModuleDescriptor& descriptor);
    void refuseCircle(const QString& need);
    void enter(const ModuleDescriptor& descriptor);
    Library& openLibrary(const QString& path);
    static void callEntry(Library& library, const QString& entry);

    PluginLoader& m_loader;
    std::map<QString, QString> m_files;           ///< descriptors by module
    std::map<QString, QVersionNumber> m_versions; ///< of the loaded modules
    QStringList m_chain;                          ///< the modules that are being loaded; each needs the next
    Outcome m_outcome;
};

void PluginLoader::Run::findModules()
{
    const QString suffix = QLatin1String(descriptorSuffix);
    for (const QString& folder : m_loader.m_folders)
        // A folder or a pipe of this name is a broken descriptor, which must be reported.
        for (const QString& file : QDir(folder).entryList({QLatin1Char('*') + suffix},
                                                          QDir::AllEntries | QDir::System | QDir::Hidden, QDir::Name))
            m_files.emplace(file.chopped(suffix.size()), QDir(folder).absoluteFilePath(file));
}

void PluginLoader::Run::loadAll()
{
    for (const auto& [name, file] : m_files)
        load(name);
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as the chain of modules that need each other
void PluginLoader::Run::load(const QString& name)
{
    if (m_versions.count(name) != 0 || m_outcome.failed.count(name) != 0)
        return;
    const auto found = m_files.find(name);
    if (found == m_files.end()) {
        m_outcome.failed[name] =
            tr("there is no %1 in %2")
                .arg(name + QLatin1String(descriptorSuffix), m_loader.m_folders.join(QStringLiteral(", ")));
        return;
    }
    m_chain << name;
    tryToLoad(name, found->second);
    m_chain.removeLast();
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as the chain of modules that need each other
void PluginLoader::Run::tryToLoad(const QString& name, const QString& file)
{
    try {
        const ModuleDescriptor descriptor = readModuleDescriptor(file);
        loadNeeds(descriptor);
        enter(descriptor);
        m_versions[name] = descriptor.version;
        m_outcome.loaded << name;
    } catch (...) {
        // A cycle has been reported already.
        m_outcome.failed.emplace(name, tr("%1 (%2)").arg(currentExceptionText(), QDir::toNativeSeparators(file)));
    }
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as the chain of modules that need each other
void PluginLoader::Run::loadNeeds(const ModuleDescriptor& descriptor)
{
    for (const auto& [need, version] : descriptor.needs) {
        refuseCircle(need);
        if (m_files.count(need) == 0)
            fail(tr("it needs the module \"%1\", which is missing").arg(need));
        load(need);
        if (m_outcome.failed.count(need) != 0)
            fail(tr("it needs the module \"%1\", which was not loaded").arg(need));
        if (isOlder(m_versions[need], version))
            fail(tr("it needs version %1 of the module \"%2\", which has version %3")
                     .arg(version.toString(), need, m_versions[need].toString()));
    }
}

/// Every module of the cycle gets the same reason.
void PluginLoader::Run::refuseCircle(const QString& need)
{
    const int begin = m_chain.indexOf(need);
    if (begin < 0)
        return;
    const QStringList circle = m_chain.mid(begin);
    const QString reason = tr("it needs itself: %1").arg((circle + QStringList(need)).join(QStringLiteral(" > ")));
    for (const QString& module : circle)
        m_outcome.failed.emplace(module, reason);
    fail(reason);
}

void PluginLoader::Run::enter(const ModuleDescriptor& descriptor)
{
    Library& library = openLibrary(descriptor.library);
    for (const QString& entry : descriptor.entries)
        if (library.resolve(entry) == nullptr)
            fail(tr("its library %1 has no function \"%2\"").arg(descriptor.library, entry));
    for (const QString& entry : descriptor.entries)
        callEntry(library, entry);
}

PluginLoader::Library& PluginLoader::Run::openLibrary(const QString& path)
{
    const auto loaded = m_loader.m_libraries.find(path);
    if (loaded != m_loader.m_libraries.end())
        return *loaded->second;
    refuseBrokenLibrary(path);
    auto library = std::make_unique<Library>();
    library->file.setFileName(path);
    // Resolves all symbols at once: a missing symbol is found now, not during later work.
    library->file.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library->file.load())
        fail(tr("its library cannot be loaded: %1").arg(library->file.errorString()));
    return *m_loader.m_libraries.emplace(path, std::move(library)).first->second;
}

void PluginLoader::Run::callEntry(Library& library, const QString& entry)
{
    if (library.calledEntries.contains(entry))
        return;
    const QString why = whyItFails(library.resolve(entry));
    if (!why.isEmpty())
        fail(tr("\"%1\" of its library failed: %2").arg(entry, why));
    library.calledEntries << entry;
}

PluginLoader::PluginLoader(QStringList folders) : m_folders(std::move(folders)) {}

PluginLoader::~PluginLoader() = default;

QStringList PluginLoader::standardFolders()
{
    const QString paths = qEnvironmentVariable("KELTA_PLUGIN_PATH");
    QStringList folders = paths.split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (QCoreApplication::instance() != nullptr)
        for (const char* folder :
             {"../lib/" KELTA_PACKAGE, "../" KELTA_LIBRARY_FOLDER "/" KELTA_PACKAGE, "../lib", "."})
            folders << QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(folder)));
    folders.removeDuplicates();
    return folders;
}

PluginLoader::Outcome PluginLoader::loadAll()
{
    Run run(*this);
    run.loadAll();
    Outcome outcome = run.takeOutcome();
    for (const auto& [name, reason] : outcome.failed)
        MessageLog::error(tr("The module \"%1\" was not loaded: %2").arg(name, reason));
    return outcome;
}

bool PluginLoader::load(const QString& name)
{
    Run run(*this);
    run.load(name);
    const Outcome outcome = run.takeOutcome();
    const auto failure = outcome.failed.find(name);
    m_errorText = failure == outcome.failed.end()
                      ? QString()
                      : tr("The module \"%1\" was not loaded: %2").arg(name, failure->second);
    return m_errorText.isEmpty();
}

} // namespace Kelta
