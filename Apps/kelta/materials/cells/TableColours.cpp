#include "TableColours.h"

#include "vxMaterial/gui/SheetTableView.h"

#include <QGuiApplication>
#include <QPalette>

namespace desktop {

bool isDark(const QPalette& colours)
{
    constexpr int middle = 128;
    return colours.color(QPalette::Base).lightness() < middle;
}

void followDarkColours(MatGui::SheetTableView& table)
{
    const auto choose = [&table, own = table.palette()] {
        table.setPalette(isDark(QGuiApplication::palette()) ? QPalette() : own);
    };
    choose();
    QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, &table, choose);
}

} // namespace desktop
