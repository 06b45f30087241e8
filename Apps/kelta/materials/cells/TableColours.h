#pragma once

class QPalette;

namespace MatGui {
class SheetTableView;
} // namespace MatGui

namespace desktop {

/// Returns whether text is bright on a dark ground in these colours.
bool isDark(const QPalette& colours);

/// Shows the table of a material editor in the colours of the program as long as these are dark. By itself the table is
/// white in every colour scheme, which dazzles beside dark windows.
void followDarkColours(MatGui::SheetTableView& table);

} // namespace desktop
