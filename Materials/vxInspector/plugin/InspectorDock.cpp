#include "plugin/InspectorDock.h"

#include "Kelta/Exceptions.h"
#include "plugin/TabsLibrary.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vxInspector {

InspectorDock::InspectorDock(QWidget* parent) : QWidget(parent), m_hint(new QLabel(this))
{
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* const layout = new QVBoxLayout(this);
    constexpr int margin = 4; // the dock is narrow
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_hint);
    retranslate();
}

InspectorDock::~InspectorDock() = default;

QSize InspectorDock::sizeHint() const
{
    constexpr int ofSmallScreen = 380; // leaves the editor its usual width at the first start
    constexpr double part = 0.28;      // of a wide screen
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const int ofScreen = screen != nullptr ? static_cast<int>(part * screen->availableGeometry().width()) : 0;
    const QFontMetrics font = fontMetrics();
    return {std::min(62 * font.averageCharWidth(), std::max(ofSmallScreen, ofScreen)), 24 * font.lineSpacing()};
}

void InspectorDock::retranslate()
{
    m_hint->setText(tr("Select a material in the project explorer, or open its editor."));
}

void InspectorDock::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(m_isPainted, true))
        QTimer::singleShot(0, this, &InspectorDock::load);
}

void InspectorDock::load()
{
    const bool isMade = Kelta::guarded(tr("The inspector cannot be loaded"), [this] { makeContent(); });
    if (!isMade && m_hint != nullptr)
        m_hint->setText(tr("The inspector cannot be loaded; the message log says why."));
}

void InspectorDock::makeContent()
{
    QWidget* const content = loadedTabs()(m_hint);
    if (content == nullptr)
        return;
    layout()->addWidget(content);
    content->show();
}

void InspectorDock::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_hint != nullptr)
        retranslate();
}

} // namespace vxInspector
