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
/// translations; all of the current language are used at once, those of modules included.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): there is one, and nobody else ends its life
class GUI_EXPORT Translator final : public QObject
{
    Q_OBJECT

public:
    static Translator* instance();

    /// "de" or "zh_CN"; "en" for the texts as they stand in the program. The language of the system at first.
    const QString& language() const { return m_language; }
    void setLanguage(const QString& language);

    /// The folders beside the program, as a build tree and an installation have them; more can be added.
    const QStringList& folders() const { return m_folders; }
    void addFolder(const QString& folder);

    /// Loads the translations of the current language anew, as when a module has come with more. What cannot be read is
    /// reported to the message log.
    void refresh();
    /// Takes all translations out, as the program's end asks for.
    void clear();

Q_SIGNALS:
    void languageChanged();

private:
    Translator();
    ~Translator() override;
    void load(const QString& folder, const QString& name);

    QString m_language;
    QStringList m_folders;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Gui
