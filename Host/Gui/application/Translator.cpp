#include "Gui/Translator.h"

#include "Kelta/MessageLog.h"
#include "application/TranslationCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>
#include <iterator>

namespace Gui {

namespace {

constexpr const char* settingsKey = "language";

/// Returns the files of `names` that serve the language best. Names are compared literally, because patterns would be
/// compiled at each start of the program.
QStringList filesFor(const QString& language, const QStringList& names)
{
    for (const QString& ending : Translator::fileLanguagesOf(language)) {
        const QString end = QStringLiteral("_%1.qm").arg(ending);
        QStringList files;
        std::copy_if(names.begin(), names.end(), std::back_inserter(files),
                     [&end](const QString& name) { return name.endsWith(end); });
        if (!files.isEmpty())
            return files;
    }
    return {};
}

/// Returns the file with Qt's own texts, such as those of message box buttons; an empty list if Qt's translations are
/// not installed. The folder of Qt's translations may hold thousands of files, so it is not listed.
QStringList toolkitFilesFor(const QString& language, const QString& folder)
{
    for (const QString& ending : Translator::fileLanguagesOf(language))
        if (const QString name = QStringLiteral("qtbase_%1.qm").arg(ending);
            QFileInfo::exists(QDir(folder).filePath(name)))
            return {name};
    return {};
}

/// The texts of one file.
class LoadedTranslation final : public QTranslator
{
public:
    /// Returns false if the file cannot be read or is damaged.
    bool loadFile(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        m_content = file.readAll();
        return isSoundTranslation(m_content) &&
               load(reinterpret_cast<const uchar*>(m_content.constData()), m_content.size());
    }

private:
    QByteArray m_content; // the base class reads from it
};

} // namespace

Translator* Translator::instance()
{
    static Translator translator;
    return &translator;
}

Translator::Translator() : m_language(QLocale::system().name())
{
    if (QCoreApplication::instance() != nullptr)
        addFolder(
            QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" GUI_TRANSLATIONS_FOLDER)));
}

Translator::~Translator() = default;

void Translator::setLanguage(const QString& language)
{
    m_language = language;
    refresh();
}

QLocale Translator::locale() const
{
    const QLocale system = QLocale::system();
    const QLocale ofTexts(m_language);
    if (system.language() == ofTexts.language())
        return system;
    const bool isEnglish = ofTexts.language() == QLocale::English || ofTexts.language() == QLocale::C;
    return isEnglish ? QLocale::c() : ofTexts;
}

QStringList Translator::languages() const
{
    QStringList languages{QStringLiteral("en")};
    const QRegularExpression ending(QStringLiteral("_([a-z]{2,3}(_[A-Z]{2})?)\\.qm$"));
    for (const QString& folder : m_folders)
        for (const QString& name : QDir(folder).entryList(QDir::Files))
            if (const auto match = ending.match(name); match.hasMatch())
                languages << match.captured(1);
    languages.sort();
    languages.removeDuplicates();
    return languages;
}

QStringList Translator::fileLanguagesOf(const QString& language)
{
    return {language, language.section(QLatin1Char('_'), 0, 0)};
}

QString Translator::nameOf(const QString& language)
{
    // The name of QLocale for English is that of a variant, "American English".
    const QLocale locale(language);
    return locale.language() == QLocale::English ? QStringLiteral("English") : locale.nativeLanguageName();
}

void Translator::chooseLanguage(const QString& language)
{
    QSettings().setValue(QLatin1String(settingsKey), language);
    restoreLanguage();
}

QString Translator::chosenLanguage()
{
    return QSettings().value(QLatin1String(settingsKey)).toString();
}

void Translator::restoreLanguage()
{
    const QString chosen = chosenLanguage();
    setLanguage(chosen.isEmpty() ? QLocale::system().name() : chosen);
}

void Translator::addFolder(const QString& folder)
{
    if (!m_folders.contains(folder))
        m_folders << folder;
}

void Translator::refresh()
{
    clear();
    const QString toolkitFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    for (const QString& name : toolkitFilesFor(m_language, toolkitFolder))
        load(toolkitFolder, name);
    for (const QString& folder : m_folders)
        for (const QString& name : filesFor(m_language, QDir(folder).entryList(QDir::Files, QDir::Name)))
            load(folder, name);
    Q_EMIT languageChanged();
}

void Translator::load(const QString& folder, const QString& name)
{
    auto translator = std::make_unique<LoadedTranslation>();
    if (!translator->loadFile(QDir(folder).filePath(name))) {
        Kelta::MessageLog::warning(
            tr("The translation %1 cannot be read; its texts are shown in English.").arg(QDir(folder).filePath(name)));
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
