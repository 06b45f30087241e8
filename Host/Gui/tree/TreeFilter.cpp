#include "Gui/TreeFilter.h"

#include <QCoreApplication>

namespace Gui {

TreeFilter::TreeFilter() = default;

TreeFilter::~TreeFilter() = default;

QString TreeFilter::remark() const
{
    return {};
}

std::vector<FilterCompletion> TreeFilter::completionsFor(const QString&, int) const
{
    return {};
}

QString TreeFilter::hint() const
{
    return QCoreApplication::translate("Gui::TreeFilter", "Filter by label");
}

QString TreeFilter::explanation() const
{
    return QCoreApplication::translate("Gui::TreeFilter", "Shows only objects whose labels have all of these words.");
}

} // namespace Gui
