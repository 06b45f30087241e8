#pragma once

#include <QObject>

class QWidget;

namespace vxInspector {

/// Lets the mouse wheel scroll a page: its lists take the wheel only while they have the keyboard. Otherwise a user who scrolls would
/// change the choice of a list that comes under the mouse.
class PageWheel : public QObject
{
public:
    /// Watches the lists that the page has now, and belongs to the page.
    explicit PageWheel(QWidget* page);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace vxInspector
