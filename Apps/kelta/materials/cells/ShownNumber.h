#pragma once

#include <QFontMetrics>
#include <QString>

namespace desktop {

/// Returns a text for a cell that leaves `width` to it. A number whose magnitude would be cut off with its end loses digits
/// in its middle instead: 206842718795.05084 becomes 2.0684…e+11. Other texts remain.
QString withMagnitudeInSight(const QString& text, const QFontMetrics& font, int width);

} // namespace desktop
