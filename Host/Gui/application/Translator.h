#pragma once

#include "Gui/GuiExport.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace Gui {

/// The language of the program's texts. Translations are files "<anything>_<language>.qm" in the translation folders.
/// All files of the current language are used together, including those of modules, and Qt's own translations if they
/// are installed.
class GUI_EXPORT Translator final : public QObject
{
    Q_OBJECT

public:
    static Translator* instance();
    ~Translator() override;

    /// "de" or "zh_CN"; "en" for the texts of the program itself. The initial language is that of the system.
    const QString& language() const { return m_language; }
    void setLanguage(const QString& language);
    /// Returns how dates are written in texts: as in the system if that has the language of the program, else as is usual in
    /// the language. Dates in English, on other systems, have the name of the month, because 11/12/26 has two meanings.
    QLocale locale() const;

    /// Returns the languages of the program: English, and the languages of the translations in the folders, sorted.
    QStringList languages() const;
    /// Returns the names under which files can serve a language, the best first: "zh_CN", then "zh".
    static QStringList fileLanguagesOf(const QString& language);
    /// Returns the name of a language in the language itself: "Deutsch".
    static QString nameOf(const QString& language);

    /// Sets the language, and stores it in the settings for the next start; an empty text for the language of the
    /// system.
    void chooseLanguage(const QString& language);
    /// Returns the language that the user has chosen; an empty text for the language of the system.
    static QString chosenLanguage();
    /// Sets the language that the user has chosen.
    void restoreLanguage();

    /// The folders with translations. The initial folder is beside the program, in a build tree and in an installation.
    const QStringList& folders() const { return m_folders; }
    void addFolder(const QString& folder);

    /// Loads the translations of the current language again. Needed after a module has added some. Files that cannot
    /// be read are reported to the message log.
    void refresh();
    /// Removes all translations. Must be called before the program ends.
    void clear();

Q_SIGNALS:
    void languageChanged();

private:
    Translator();
    void load(const QString& folder, const QString& name);

    QString m_language;
    QStringList m_folders;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Gui
