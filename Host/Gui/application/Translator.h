#pragma once

#include "Gui/GuiExport.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace Gui {

/// The language of the program's texts. Translations are files "<anything>_<language>.qm" in the folders of
/// translations; all of the current language are used at once, those of modules included, and Qt's own if they are
/// installed.
class GUI_EXPORT Translator final : public QObject
{
    Q_OBJECT

public:
    static Translator* instance();
    ~Translator() override;

    /// "de" or "zh_CN"; "en" for the texts of the program itself. At first it is the language of the system.
    const QString& language() const { return m_language; }
    void setLanguage(const QString& language);

    /// The folders with translations: at first the one beside the program, in a build tree as in an installation.
    const QStringList& folders() const { return m_folders; }
    void addFolder(const QString& folder);

    /// Loads the translations of the current language again, as needed after a module has brought more. Files that cannot
    /// be read are reported to the message log.
    void refresh();
    /// Removes all translations. To be called before the program ends.
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
