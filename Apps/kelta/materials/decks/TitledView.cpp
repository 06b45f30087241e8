#include "decks/TitledView.h"

#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace desktop {

QWidget* makeTitledView(QLabel* title, QWidget* view, QWidget* parent)
{
    auto* const part = new QWidget(parent);
    auto* const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(title);
    layout->addWidget(view, 1);
    title->setBuddy(view);
    return part;
}

void resizeDeckDialog(QWidget& dialog)
{
    constexpr QSize usual(900, 640);
    const QScreen* const screen = dialog.screen();
    // The rest is for the frame of the window.
    dialog.resize(screen != nullptr ? usual.boundedTo(screen->availableSize() * 95 / 100) : usual);
}

} // namespace desktop
