#include "decks/TitledView.h"

#include <QLabel>
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

} // namespace desktop
