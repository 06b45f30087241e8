#include "cards/CardsPage.h"

#include "Kelta/Exceptions.h"
#include "table/ContentView.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
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
      m_forms(new QComboBox(m_controls)),
      m_copy(new QPushButton(m_controls))
{
    createControls();
    CardsPage::retranslate();
    m_controls->hide();
    connect(m_formats, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        offerForms();
        Q_EMIT chosen();
    });
    connect(m_forms, qOverload<int>(&QComboBox::currentIndexChanged), this, &CardsPage::chosen);
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
    m_forms->setObjectName(QStringLiteral("cardForms"));
    m_forms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_copy->setObjectName(QStringLiteral("copyCards"));
    m_copy->setAutoDefault(false);
    m_label->setBuddy(m_formats);
    auto* const grid = new QGridLayout(m_controls);
    grid->setContentsMargins({});
    grid->addWidget(m_label, 0, 0);
    grid->addWidget(m_formats, 0, 1);
    grid->addWidget(m_copy, 0, 2);
    grid->addWidget(m_forms, 1, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    static_cast<QBoxLayout*>(layout())->insertWidget(0, m_controls);
    setTabOrder(m_formats, m_forms);
    setTabOrder(m_forms, m_copy);
    setTabOrder(m_copy, &view());
}

std::optional<vxDecks::Format> CardsPage::format() const
{
    const QVariant chosen = m_formats->currentData();
    return chosen.isValid() ? std::optional(static_cast<vxDecks::Format>(chosen.toInt())) : std::nullopt;
}

std::optional<DeckForm> CardsPage::form() const
{
    const auto chosen = format();
    return chosen ? std::optional(deckForm(*chosen, m_forms->currentData().toString().toStdString())) : std::nullopt;
}

/// Fills the list of forms for the chosen format, and keeps the chosen form if the format has it. A format with a single
/// form has no list.
void CardsPage::offerForms()
{
    const QSignalBlocker blocker(m_forms);
    const QVariant before = m_forms->currentData();
    const auto chosen = format();
    m_forms->clear();
    if (chosen)
        for (const DeckForm& one : deckForms(*chosen))
            m_forms->addItem(one.title, QString::fromStdString(one.name));
    m_forms->setCurrentIndex(std::max(m_forms->findData(before), 0));
    m_forms->setHidden(m_forms->count() == 0);
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
    m_forms->setAccessibleName(tr("Form of the text"));
    m_forms->setToolTip(tr("The form in which the solver reads its input"));
    offerForms();
    m_copy->setText(tr("&Copy"));
    m_copy->setToolTip(tr("Copy the text of the cards"));
}

void CardsPage::copyCards() const
{
    QGuiApplication::clipboard()->setText(cardsOf(view().content()));
}

} // namespace vxInspector
