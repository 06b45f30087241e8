#include "table/ViewHeight.h"

#include "table/ContentView.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace vxInspector {

void fitHeight(ContentView& view, int mostLines)
{
    const int most = view.fontMetrics().lineSpacing() * mostLines;
    const int rows = view.verticalHeader()->length();
    const int header = view.horizontalHeader()->isHidden() ? 0 : view.horizontalHeader()->sizeHint().height();
    const int bar = view.horizontalScrollBar()->isVisible() ? view.horizontalScrollBar()->sizeHint().height() : 0;
    const int whole = header + rows + bar + 2 * view.frameWidth();
    // A bar that comes and goes would make the rows higher and lower without end.
    view.setVerticalScrollBarPolicy(whole > most ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    view.setFixedHeight(std::min(whole, most));
}

} // namespace vxInspector
