#include "plugin/TabPage.h"

#include "table/ContentView.h"

#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace vxInspector {

TabPage::TabPage(const char* name, QWidget* parent)
    : QWidget(parent), m_sentence(new QLabel(this)), m_view(new ContentView(this))
{
    setObjectName(QLatin1String(name));
    m_sentence->setObjectName(QStringLiteral("sentence"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // A long label of a material must not widen the dock.
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const layout = new QVBoxLayout(this);
    // The table gets the width of a narrow dock.
    QMargins margins = layout->contentsMargins();
    margins.setRight(0);
    margins.setLeft(0);
    layout->setContentsMargins(margins);
    layout->addWidget(m_sentence);
    layout->addWidget(m_view, 1);
    m_view->hide();
    layout->addStretch(0);
}

TabPage::~TabPage() = default;

void TabPage::setContent(TableContent content)
{
    m_sentence->setText(content.sentence);
    m_view->setHidden(content.headers.isEmpty());
    m_view->setContent(std::move(content));
}

void TabPage::retranslate()
{
    m_view->retranslate();
}

} // namespace vxInspector
