#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

namespace Gui {

/// The style of the platform, with its icons at less expense: bars ask for the icon of a button that only too narrow a
/// window has, and each dock reads the same pictures again for its title.
class HostStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HostStyle();
    ~HostStyle() override;

    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

private:
    mutable QHash<int, QIcon> m_titleIcons;
};

} // namespace Gui
