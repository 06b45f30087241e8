#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace desktop {

/// The verb "property NAME VALUE": sets a property of the selected object, as one undoable step. Returns what went wrong;
/// absent if nothing did.
std::optional<QString> setProperty(const QStringList& arguments);

/// The verb "properties": prints the properties of the selected object, "NAME = VALUE", without those that are hidden.
std::optional<QString> printProperties(const QStringList& arguments);

} // namespace desktop
