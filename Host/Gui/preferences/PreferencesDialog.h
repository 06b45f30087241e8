#pragma once

#include "Gui/Contributions.h"

#include <QDialog>

#include <vector>

class QDialogButtonBox;
class QTabWidget;

namespace Gui {

class PreferencesPage;

/// The preferences of the user: a general page of the host, and the pages of modules. Apply stores the changed pages, OK
/// does the same and closes the dialog, Cancel discards what was not applied. If a changed page is not valid, nothing is
/// stored and the dialog shows that page.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    PreferencesDialog(const std::vector<PreferencesEntry>& entries, QWidget* parent);
    ~PreferencesDialog() override;

    void accept() override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// A page and its title.
    struct Page
    {
        PreferencesPage* page = nullptr; ///< the tabs own it
        TranslatableText title;
    };

    void addPage(const PreferencesEntry& entry);
    void buildLayout();
    void addKey(int key, int step);
    void retranslate();
    void updateButtons();
    bool apply();
    bool showInvalidPage();

    QTabWidget* m_tabs;
    QDialogButtonBox* m_buttons;
    std::vector<Page> m_pages; ///< in the order of the tabs
};

/// Opens the dialog in front of the main window, with the pages that modules have contributed. Returns at once. If the
/// dialog is open already, brings it to the front.
void openPreferences();

} // namespace Gui
