#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace desktop {

/// The verb "property NAME VALUE": sets a property of the selected object or of its tree node, as one step of the history.
/// Returns the reason if it fails.
std::optional<QString> setProperty(const QStringList& arguments);

/// The verb "label TEXT": sets the label of the selected object in the same way.
std::optional<QString> setLabel(const QStringList& arguments);

/// The verb "properties": prints the properties of the selected object, then those of its tree node, "NAME = VALUE",
/// except hidden properties.
std::optional<QString> printProperties(const QStringList& arguments);

} // namespace desktop
