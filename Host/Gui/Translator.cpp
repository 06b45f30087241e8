#include "Gui/Translator.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace Gui {

namespace {

/// What ends the names of the files that may serve a language: "zh_CN", then "zh".
QStringList endingsFor(const QString& language)
{
    return {language, language.section(QLatin1Char('_'), 0, 0)};
}

QStringList filesFor(const QString& language, const QString& folder, const QString& stem)
{
    for (const QString& ending : endingsFor(language)) {
        QStringList names =
            QDir(folder).entryList({QStringLiteral("%1_%2.qm").arg(stem, ending)}, QDir::Files, QDir::Name);
        if (!names.isEmpty())
            return names;
    }
    return {};
}

} // namespace

Translator* Translator::instance()
{
    static Translator translator;
    return &translator;
}

Translator::Translator() : m_language(QLocale::system().name())
{
    if (QCoreApplication::instance() != nullptr)
        addFolder(QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                  QStringLiteral("/../share/vxMaterial/translations")));
}

Translator::~Translator() = default;

void Translator::setLanguage(const QString& language)
{
    m_language = language;
    refresh();
}

void Translator::addFolder(const QString& folder)
{
    if (!m_folders.contains(folder))
        m_folders << folder;
}

void Translator::refresh()
{
    clear();
    // The toolkit's own texts, such as those of the buttons of message boxes.
    const QString toolkitFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    for (const QString& name : filesFor(m_language, toolkitFolder, QStringLiteral("qtbase")))
        load(toolkitFolder, name);
    for (const QString& folder : m_folders)
        for (const QString& name : filesFor(m_language, folder, QStringLiteral("*")))
            load(folder, name);
    Q_EMIT languageChanged();
}

void Translator::load(const QString& folder, const QString& name)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder)) {
        Kelta::MessageLog::warning(tr("The translation %1 cannot be read.").arg(QDir(folder).filePath(name)));
        return;
    }
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

void Translator::clear()
{
    for (const auto& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
    m_translators.clear();
}

} // namespace Gui
