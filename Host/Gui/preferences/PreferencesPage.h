#pragma once

#include "Gui/GuiExport.h"

#include <QWidget>

namespace Gui {

/// A page of the preferences dialog: fields for settings of the user. The dialog makes its pages when it opens, and the
/// pages show the stored settings. Contributions::addPreferencesPage adds the page of a module.
///
/// A page sets its first field as its focus proxy. If a setting cannot be read, the page shows the default of the
/// setting, and the stored text is kept until the user changes the field.
class GUI_EXPORT PreferencesPage : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesPage(QWidget* parent = nullptr);
    ~PreferencesPage() override;

    /// Returns whether the fields differ from what the page showed first or stored last.
    virtual bool isChanged() const = 0;
    /// Returns whether the fields can be stored. A page shows the reason beside a field that cannot be stored.
    virtual bool isValid() const;
    /// Stores the fields and applies them. Called only if the page is changed and valid.
    virtual void store() = 0;

Q_SIGNALS:
    /// Must be sent after each change of a field.
    void edited();
};

} // namespace Gui
