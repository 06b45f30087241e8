#include "UnitChoice.h"

#include "vxInspector/units/ProjectUnits.h"
#include "vxInspector/units/UnitTexts.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

namespace desktop {

namespace {

using vxUnits::Dimension;
using vxUnits::UnitSystem;

// The data of the entries that are not built-in systems.
constexpr const char* ofPreferences = "preferences";
constexpr const char* ownUnits = "own";

constexpr int longestText = 1000;

/// Returns the base units as UnitSystem::parse() takes them.
QString basesOf(const UnitSystem& system)
{
    const auto unit = [&system](Dimension::Base base) { return QString::fromStdString(system.baseUnit(base)); };
    QString text = QStringLiteral("length %1, mass %2, time %3")
                       .arg(unit(Dimension::Length), unit(Dimension::Mass), unit(Dimension::Time));
    if (unit(Dimension::Temperature) != QLatin1String("K"))
        text += QStringLiteral(", temperature %1").arg(unit(Dimension::Temperature));
    if (unit(Dimension::Current) != QLatin1String("A"))
        text += QStringLiteral(", current %1").arg(unit(Dimension::Current));
    return text;
}

QString unitOf(const UnitSystem& system, const Dimension& dimension)
{
    return QString::fromStdString(system.unitOf(dimension).text());
}

/// Returns a red that is readable on the ground of the widget.
QColor colorOfFaults(const QWidget& widget)
{
    const bool isDark = widget.palette().color(QPalette::Window).lightness() < 128;
    return isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
}

} // namespace

UnitChoice::UnitChoice(Preference preference, QWidget* parent) : UnitChoice(preference, std::nullopt, parent) {}

UnitChoice::UnitChoice(UnitSystem ofProject, QWidget* parent)
    : UnitChoice(Preference::Offered, std::optional(std::move(ofProject)), parent)
{}

UnitChoice::UnitChoice(Preference preference, std::optional<UnitSystem> ofProject, QWidget* parent)
    : QWidget(parent),
      m_preference(preference),
      m_ofProject(std::move(ofProject)),
      m_systems(new QComboBox(this)),
      m_bases(new QLineEdit(this)),
      m_remark(new QLabel(this))
{
    m_systems->setObjectName(QStringLiteral("unitSystems"));
    m_bases->setObjectName(QStringLiteral("baseUnits"));
    m_bases->setMaxLength(longestText);
    m_remark->setObjectName(QStringLiteral("unitRemark"));
    setFocusProxy(m_systems);
    setFocusPolicy(Qt::StrongFocus); // a label gives the focus only to a widget that takes it
    fillSystems();
    buildLayout();
    retranslate();
    systemChosen();
    connect(m_systems, qOverload<int>(&QComboBox::currentIndexChanged), this, &UnitChoice::systemChosen);
    connect(m_bases, &QLineEdit::textChanged, this, [this] {
        showUnits();
        Q_EMIT edited();
    });
}

UnitChoice::~UnitChoice() = default;

void UnitChoice::fillSystems()
{
    if (m_preference != Preference::NotOffered)
        m_systems->addItem(QString(), QLatin1String(ofPreferences));
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        const QString text = QString::fromStdString(system.text());
        m_systems->addItem(text, text);
    }
    m_systems->addItem(QString(), QLatin1String(ownUnits));
}

void UnitChoice::buildLayout()
{
    m_remark->setTextFormat(Qt::PlainText);
    m_remark->setWordWrap(true);
    m_remark->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    // The dialog keeps its size while the user types.
    m_remark->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_bases->setMinimumWidth(44 * fontMetrics().averageCharWidth());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_systems);
    layout->addWidget(m_bases);
    layout->addWidget(m_remark, 1);
}

void UnitChoice::retranslate()
{
    const QString offered = QString::fromStdString(m_ofProject.value_or(vxInspector::defaultSystem()).text());
    const QString first = m_preference == Preference::Undecided ? tr("Not chosen yet")
                          : m_ofProject                         ? tr("As the project (%1)").arg(offered)
                                                                : tr("As in the preferences (%1)").arg(offered);
    if (const int index = m_systems->findData(QLatin1String(ofPreferences)); index >= 0)
        m_systems->setItemText(index, first);
    m_systems->setItemText(m_systems->findData(QLatin1String(ownUnits)), tr("Own base units"));
    m_systems->setAccessibleName(tr("Unit system"));
    m_bases->setAccessibleName(tr("Base units"));
}

void UnitChoice::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange && event->type() != QEvent::PaletteChange)
        return;
    retranslate();
    showUnits();
}

bool UnitChoice::isOwn() const
{
    return m_systems->currentData() == QLatin1String(ownUnits);
}

bool UnitChoice::isPreference() const
{
    return m_systems->currentData() == QLatin1String(ofPreferences);
}

bool UnitChoice::isUndecided() const
{
    return m_preference == Preference::Undecided && isPreference();
}

vxUnits::Result<UnitSystem> UnitChoice::read() const
{
    if (isUndecided())
        return UnitSystem::parse({});
    if (isPreference())
        return m_ofProject.value_or(vxInspector::defaultSystem());
    const QString text = isOwn() ? m_bases->text() : m_systems->currentData().toString();
    return UnitSystem::parse(text.toStdString());
}

void UnitChoice::setSystem(const QString& text)
{
    const QString wanted = text.isEmpty() && m_preference == Preference::NotOffered
                               ? QString::fromStdString(UnitSystem::si().text())
                               : text;
    int index = m_systems->findData(wanted.isEmpty() ? QLatin1String(ofPreferences) : wanted);
    if (index < 0) {
        index = m_systems->findData(QLatin1String(ownUnits));
        m_systems->setCurrentIndex(index);
        m_bases->setText(text);
        return;
    }
    m_systems->setCurrentIndex(index);
}

QString UnitChoice::system() const
{
    const auto chosen = read();
    return isPreference() || !chosen ? QString() : QString::fromStdString(chosen->text());
}

bool UnitChoice::isValid() const
{
    return read().hasValue();
}

/// The base units of a built-in system stay when the user begins to edit them.
void UnitChoice::systemChosen()
{
    m_bases->setReadOnly(!isOwn());
    m_bases->setEnabled(isOwn());
    m_bases->setPlaceholderText(isOwn() ? QStringLiteral("length cm, mass g, time us") : QString());
    if (const auto chosen = read(); !isOwn())
        m_bases->setText(chosen ? basesOf(*chosen) : QString());
    m_bases->setCursorPosition(0); // a text that is longer than the field shows its start
    showUnits();
    Q_EMIT edited();
}

void UnitChoice::showUnits()
{
    const auto chosen = read();
    QPalette colors = m_remark->parentWidget()->palette();
    if (chosen) {
        m_remark->setText(tr("Stress in %1, density in %2, thermal conductivity in %3")
                              .arg(unitOf(*chosen, vxUnits::dimensions::pressure),
                                   unitOf(*chosen, vxUnits::dimensions::density),
                                   unitOf(*chosen, vxUnits::dimensions::thermalConductivity)));
    } else {
        m_remark->setText(isUndecided() ? QString() : vxInspector::translated(chosen.failure()));
        colors.setColor(QPalette::WindowText, colorOfFaults(*this));
    }
    m_remark->setPalette(colors);
    m_bases->setAccessibleDescription(m_remark->text());
}

} // namespace desktop
