#include "Gui/PreferencesPage.h"

namespace Gui {

PreferencesPage::PreferencesPage(QWidget* parent) : QWidget(parent) {}

PreferencesPage::~PreferencesPage() = default;

bool PreferencesPage::isValid() const
{
    return true;
}

} // namespace Gui
