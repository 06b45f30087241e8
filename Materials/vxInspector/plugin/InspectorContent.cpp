#include "plugin/InspectorContent.h"

#include "Kelta/Exceptions.h"
#include "plugin/Inspector.h"
#include "subject/SubjectWatch.h"

#include <QLabel>
#include <QVBoxLayout>

#include <memory>
#include <utility>

namespace vxInspector {

InspectorContent::InspectorContent(QLabel& hint) : m_watch(new SubjectWatch(this)), m_hint(&hint)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hint);
    connect(m_watch, &SubjectWatch::changed, this, &InspectorContent::refreshIfNeeded);
}

/// The tabs go before the watch, which was made first.
InspectorContent::~InspectorContent()
{
    delete m_inspector;
}

void InspectorContent::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refreshIfNeeded();
}

void InspectorContent::refreshIfNeeded()
{
    if (isVisible())
        Kelta::guarded(tr("The inspector cannot be updated"), [this] { refresh(); });
}

void InspectorContent::refresh()
{
    if (m_inspector == nullptr && m_watch->current().kind == Subject::Kind::Nothing)
        return;
    if (m_inspector == nullptr) {
        m_inspector = new Inspector(*m_watch, this);
        layout()->addWidget(m_inspector);
        delete std::exchange(m_hint, nullptr);
        m_inspector->show();
    }
    m_inspector->refresh();
}

} // namespace vxInspector

QWidget* vxMakeInspectorContent(QLabel* hint)
{
    QWidget* content = nullptr;
    Kelta::guarded(QStringLiteral("vxMakeInspectorContent"),
                   [&] { content = std::make_unique<vxInspector::InspectorContent>(*hint).release(); });
    return content;
}
