#pragma once

#include <QIcon>
#include <QProxyStyle>

class QStyleOptionToolBox;

namespace Gui {

/// The style of the platform, with own icons for the buttons that toolbars show if the window is too narrow. The
/// platform reads its icons from files when a toolbar is made, which makes the start 6 % longer (gui_bench). The close
/// buttons of tabs have the colour of the text, because the dark picture of the platform is not visible on dark tabs.
/// A title of a tool box that is cut keeps its "&". The selection in a view on which the keyboard does not act is paler, so
/// that the user sees where the keyboard acts. Check boxes have a visible frame on dark ground.
class HostStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HostStyle();
    ~HostStyle() override;

    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

private:
    void drawToolBoxTitle(const QStyleOptionToolBox& title, QPainter* painter, const QWidget* widget) const;
};

} // namespace Gui
