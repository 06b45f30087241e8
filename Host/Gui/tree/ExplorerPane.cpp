#include "tree/ExplorerPane.h"

#include "Gui/Contributions.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeFilter.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "tree/FilterField.h"
#include "tree/LabelFilter.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace Gui {

namespace {

constexpr int margin = 4;

/// Returns a text that fits into a line or two.
QString shortened(const QString& label)
{
    constexpr int longest = 60;
    return label.size() <= longest ? label : label.left(longest) + QStringLiteral("...");
}

} // namespace

ExplorerPane::ExplorerPane(ProjectExplorer& explorer, const Contributions& contributions)
    : m_contributions(contributions),
      m_labelFilter(std::make_unique<LabelFilter>()),
      m_explorer(&explorer),
      m_field(new FilterField([this](const QString& text, int cursor) { return filter().completionsFor(text, cursor); },
                              this)),
      m_state(new QLabel(this))
{
    m_field->setObjectName(QStringLiteral("treeFilter"));
    m_state->setObjectName(QStringLiteral("treeFilterState"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_state->setContentsMargins(margin, 0, margin, margin / 2);
    m_state->hide();
    explorer.setFrameShape(QFrame::NoFrame);
    // The dock may shrink to the field and one line of the tree, so that all docks fit into a small screen.
    explorer.setMinimumSize(1, fontMetrics().lineSpacing());
    auto* const top = new QVBoxLayout;
    top->setContentsMargins(margin, margin, margin, margin);
    top->addWidget(m_field);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(top);
    layout->addWidget(m_state);
    layout->addWidget(&explorer, 1);
    setFocusProxy(&explorer);
    connectParts();
    retranslate();
}

ExplorerPane::~ExplorerPane() = default;

void ExplorerPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ExplorerPane::connectParts()
{
    connect(m_field, &QLineEdit::textChanged, this, &ExplorerPane::applyText);
    connect(m_field, &FilterField::abandoned, this, &ExplorerPane::abandon);
    connect(m_field, &FilterField::confirmed, m_explorer, &ProjectExplorer::enter);
    connect(m_explorer, &ProjectExplorer::findRequested, this, [this] {
        m_field->setFocus(Qt::ShortcutFocusReason);
        m_field->selectAll();
    });
    connect(m_explorer, &ProjectExplorer::filtered, this, &ExplorerPane::follow);
    connect(&m_contributions, &Contributions::changed, this, [this] {
        if (&filter() != m_appliedFilter)
            retranslate();
    });
}

void ExplorerPane::retranslate()
{
    m_field->setAccessibleName(tr("Filter of the project explorer"));
    m_field->setPlaceholderText(filter().hint());
    m_field->setToolTip(filter().explanation());
    applyText();
}

TreeFilter& ExplorerPane::filter() const
{
    TreeFilter* const registered = m_contributions.treeFilter();
    return registered != nullptr ? *registered : *m_labelFilter;
}

void ExplorerPane::applyText()
{
    Kelta::guarded(tr("The project explorer cannot be filtered"), [this] { apply(); });
}

void ExplorerPane::apply()
{
    m_appliedFilter = &filter();
    const auto fault = filter().setExpression(m_field->text());
    m_field->mark(fault);
    m_hasFault = fault.has_value();
    if (fault)
        return showLines(fault->reason);
    if (m_field->text().trimmed().isEmpty())
        m_explorer->setFilter({});
    else
        m_explorer->setFilter([this](const Obj::ProjectObject& object) { return filter().matches(object); });
    showState({});
}

void ExplorerPane::follow(const QStringList& hiddenLabels)
{
    if (Obj::Application::get_projects().empty())
        m_field->clear();
    else
        showState(hiddenLabels);
}

/// A fault of the text stays visible until the text changes.
void ExplorerPane::showState(const QStringList& hiddenLabels)
{
    if (m_hasFault)
        return;
    const auto counts = m_explorer->matchCounts();
    QStringList lines(tr("Matches: %1 of %2").arg(counts.matching).arg(counts.all));
    if (hiddenLabels.size() == 1)
        lines << tr(R"("%1" does not match and is hidden.)").arg(shortened(hiddenLabels.first()));
    else if (!hiddenLabels.isEmpty())
        lines << tr("New or changed objects that do not match and are hidden: %1").arg(hiddenLabels.size());
    if (const QString remark = filter().remark(); !remark.isEmpty())
        lines << remark;
    const bool hasText = !m_field->text().trimmed().isEmpty();
    showLines(hasText ? lines.join(QLatin1Char('\n')) : QString());
}

/// The list of completions follows the new height of the lines.
void ExplorerPane::showLines(const QString& lines)
{
    m_state->setText(lines);
    m_state->setVisible(!lines.isEmpty());
    layout()->activate();
    m_field->keepListBelow(*m_state);
}

void ExplorerPane::abandon()
{
    m_field->clear();
    m_explorer->setFocus(Qt::OtherFocusReason);
}

} // namespace Gui
