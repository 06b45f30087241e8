#include "cards/CardsPage.h"

#include "Kelta/Exceptions.h"
#include "table/ContentView.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace vxInspector {

namespace {

/// Returns the texts of all cards of a table, one below the other.
QString cardsOf(const TableContent& table)
{
    QString text;
    for (const Row& row : table.rows)
        for (const Cell& cell : row.cells)
            if (cell.isFixed)
                text += cell.copied() + QLatin1Char('\n');
    return text;
}

} // namespace

CardsPage::CardsPage(QWidget* parent)
    : TabPage("inspectorCards", parent),
      m_controls(new QWidget(this)),
      m_label(new QLabel(m_controls)),
      m_formats(new QComboBox(m_controls)),
      m_copy(new QPushButton(m_controls))
{
    createControls();
    CardsPage::retranslate();
    m_controls->hide();
    connect(m_formats, qOverload<int>(&QComboBox::currentIndexChanged), this, &CardsPage::chosen);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { Kelta::guarded(tr("The cards cannot be copied"), [this] { copyCards(); }); });
}

CardsPage::~CardsPage() = default;

void CardsPage::createControls()
{
    m_formats->setObjectName(QStringLiteral("cardFormats"));
    m_formats->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_formats->addItem(QString());
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        m_formats->addItem(QString::fromLatin1(format.title), static_cast<int>(format.format));
    m_copy->setObjectName(QStringLiteral("copyCards"));
    m_copy->setAutoDefault(false);
    m_label->setBuddy(m_formats);
    auto* const line = new QHBoxLayout(m_controls);
    line->setContentsMargins({});
    line->addWidget(m_label);
    line->addWidget(m_formats, 1);
    line->addWidget(m_copy);
    static_cast<QBoxLayout*>(layout())->insertWidget(0, m_controls);
    setTabOrder(m_formats, m_copy);
    setTabOrder(m_copy, &view());
}

std::optional<vxDecks::Format> CardsPage::format() const
{
    const QVariant chosen = m_formats->currentData();
    return chosen.isValid() ? std::optional(static_cast<vxDecks::Format>(chosen.toInt())) : std::nullopt;
}

void CardsPage::setContent(TableContent content)
{
    m_controls->setHidden(content.headers.isEmpty());
    m_copy->setEnabled(!cardsOf(content).isEmpty());
    TabPage::setContent(std::move(content));
}

void CardsPage::retranslate()
{
    TabPage::retranslate();
    m_label->setText(tr("C&ards for:"));
    m_formats->setItemText(0, tr("The solver of this program"));
    m_formats->setAccessibleName(tr("Cards for"));
    m_formats->setToolTip(tr("The solver whose input is shown"));
    m_copy->setText(tr("&Copy"));
    m_copy->setToolTip(tr("Copy the text of the cards"));
}

void CardsPage::copyCards() const
{
    QGuiApplication::clipboard()->setText(cardsOf(view().content()));
}

} // namespace vxInspector
