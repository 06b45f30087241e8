#include "fit/TestForm.h"

#include "Kelta/Exceptions.h"
#include "curves/ConstitutiveTexts.h"
#include "fit/FitTests.h"
#include "vxPlot/drawing/PlotItems.h"
#include "vxUnits/Reading.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::ColumnChoice;
using vxConstitutive::Measure;
using vxConstitutive::Mode;
using vxConstitutive::TestReading;
using vxConstitutive::TestReadRequest;

QComboBox* makeChoice(QWidget* parent, const QString& name)
{
    auto* const choice = new QComboBox(parent);
    choice->setObjectName(name);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(4);
    return choice;
}

QLineEdit* makeField(QWidget* parent, const QString& name)
{
    auto* const field = new QLineEdit(parent);
    field->setObjectName(name);
    return field;
}

/// Returns the number in a field in the unit `unit`; absent if it cannot be read.
std::optional<double> numberIn(const QLineEdit& field, const char* unit)
{
    const auto read = vxUnits::readNumber(field.text().trimmed().toStdString(), *vxUnits::Unit::parse(unit));
    return read ? std::optional(read->value) : std::nullopt;
}

bool isSame(const ColumnChoice& one, const ColumnChoice& other)
{
    return one.column == other.column && one.measure == other.measure && one.unit == other.unit;
}

} // namespace

TestForm::TestForm(FitTests& tests, QWidget* parent)
    : QWidget(parent),
      m_tests(tests),
      m_modeLabel(new QLabel(this)),
      m_mode(makeChoice(this, QStringLiteral("fitMode"))),
      m_abscissa(makeAxis("fitX")),
      m_ordinate(makeAxis("fitY")),
      m_stressLabel(new QLabel(this)),
      m_stress(makeField(this, QStringLiteral("fitStress"))),
      m_weightLabel(new QLabel(this)),
      m_weight(makeField(this, QStringLiteral("fitWeight"))),
      m_preview(new QLabel(this))
{
    m_preview->setObjectName(QStringLiteral("fitPreview"));
    m_preview->setTextFormat(Qt::PlainText);
    m_preview->setWordWrap(true);
    m_preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layOut();
    connectAxis(m_abscissa, &TestReadRequest::abscissa);
    connectAxis(m_ordinate, &TestReadRequest::ordinate);
    const auto read = [this] { Kelta::guarded(tr("The test data cannot be used"), [this] { readFields(); }); };
    connect(m_mode, QOverload<int>::of(&QComboBox::activated), this, read);
    for (QLineEdit* const field : {m_stress, m_weight})
        connect(field, &QLineEdit::editingFinished, this, read);
    retranslate();
}

TestForm::~TestForm() = default;

TestForm::AxisControls TestForm::makeAxis(const char* name)
{
    const QString own = QLatin1String(name);
    AxisControls axis{new QLabel(this), makeChoice(this, own + QStringLiteral("Column")),
                      makeChoice(this, own + QStringLiteral("Measure")), makeField(this, own + QStringLiteral("Unit"))};
    // The row must not be wider than the dock.
    for (QWidget* const widget : std::initializer_list<QWidget*>{axis.column, axis.measure, axis.unit}) {
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * 5);
    }
    axis.label->setBuddy(axis.column);
    return axis;
}

void TestForm::layOut()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_modeLabel, 0, 0);
    grid->addWidget(m_mode, 0, 1, 1, 2);
    addAxis(*grid, 1, m_abscissa);
    addAxis(*grid, 3, m_ordinate);
    grid->addWidget(m_stressLabel, 5, 0);
    grid->addWidget(m_stress, 5, 1, 1, 2);
    grid->addWidget(m_weightLabel, 6, 0);
    grid->addWidget(m_weight, 6, 1);
    grid->addWidget(m_preview, 7, 0, 1, 3);
    for (const auto& [column, stretch] : {std::pair(1, 3), std::pair(2, 1)})
        grid->setColumnStretch(column, stretch);
    m_modeLabel->setBuddy(m_mode);
    m_stressLabel->setBuddy(m_stress);
    m_weightLabel->setBuddy(m_weight);
}

void TestForm::addAxis(QGridLayout& grid, int row, const AxisControls& axis) const
{
    grid.addWidget(axis.label, row, 0);
    grid.addWidget(axis.column, row, 1, 1, 2);
    grid.addWidget(axis.measure, row + 1, 1);
    grid.addWidget(axis.unit, row + 1, 2);
}

void TestForm::connectAxis(const AxisControls& axis, Choice choice)
{
    const auto read = [this, axis, choice] {
        Kelta::guarded(tr("The test data cannot be used"), [this, &axis, choice] { readAxis(axis, choice); });
    };
    connect(axis.column, QOverload<int>::of(&QComboBox::activated), this, read);
    connect(axis.measure, QOverload<int>::of(&QComboBox::activated), this, read);
    connect(axis.unit, &QLineEdit::editingFinished, this, read);
}

void TestForm::retranslate()
{
    m_modeLabel->setText(tr("&Test:"));
    retranslateAxis(m_abscissa, tr("Hori&zontal:"));
    retranslateAxis(m_ordinate, tr("&Vertical:"));
    m_stressLabel->setText(tr("&Stress:"));
    m_weightLabel->setText(tr("&Weight:"));
    const QSignalBlocker blocker(m_mode);
    m_mode->clear();
    m_mode->addItem(tr("Choose the test"));
    for (const Mode mode : measuredModes())
        m_mode->addItem(constitutiveWord(vxConstitutive::modeRecord(mode).name), static_cast<int>(mode));
    showTest(m_row);
}

void TestForm::retranslateAxis(const AxisControls& axis, const QString& label) const
{
    axis.label->setText(label);
    axis.column->setAccessibleName(tr("Column"));
    axis.measure->setAccessibleName(tr("Measured quantity"));
    axis.unit->setAccessibleName(tr("Unit"));
    axis.column->setToolTip(tr("The column of the file"));
    axis.measure->setToolTip(tr("What the column measures"));
    axis.unit->setToolTip(tr("The unit of the column, such as MPa or %"));
}

/// The first entry of a choice leaves it to the header of the column.
void TestForm::readAxis(const AxisControls& axis, Choice choice)
{
    const LoadedTest* const test = m_tests.at(m_row);
    if (test == nullptr)
        return;
    ColumnChoice chosen;
    if (axis.column->currentIndex() > 0)
        chosen.column = static_cast<std::size_t>(axis.column->currentIndex() - 1);
    if (axis.measure->currentIndex() > 0)
        chosen.measure = static_cast<Measure>(axis.measure->currentData().toInt());
    if (!axis.unit->text().trimmed().isEmpty())
        chosen.unit = axis.unit->text().trimmed().toStdString();
    // A field that only loses the keyboard changes nothing.
    if (!isSame(chosen, test->request.*choice))
        m_tests.change(m_row, [&](LoadedTest& changed) { changed.request.*choice = chosen; });
}

void TestForm::readFields()
{
    const LoadedTest* const test = m_tests.at(m_row);
    if (test == nullptr)
        return;
    std::optional<Mode> mode;
    if (m_mode->currentIndex() > 0)
        mode = static_cast<Mode>(m_mode->currentData().toInt());
    const std::optional<double> stress = numberIn(*m_stress, "Pa");
    const double weight = numberIn(*m_weight, "1").value_or(1.0);
    // A field that only loses the keyboard changes nothing.
    if (mode == test->mode && stress == test->request.stress && weight == test->request.weight)
        return;
    m_tests.change(m_row, [&](LoadedTest& changed) {
        changed.mode = mode;
        changed.request.stress = stress;
        changed.request.weight = weight;
    });
}

void TestForm::showTest(int row)
{
    m_row = row;
    const LoadedTest* const test = m_tests.at(row);
    setHidden(test == nullptr);
    if (test == nullptr)
        return;
    m_mode->setCurrentIndex(test->mode ? m_mode->findData(static_cast<int>(*test->mode)) : 0);
    const Mode mode = test->mode.value_or(Mode::Uniaxial);
    showAxis(m_abscissa, *test, &TestReadRequest::abscissa, &TestReading::abscissa,
             vxConstitutive::abscissaMeasures(mode));
    showAxis(m_ordinate, *test, &TestReadRequest::ordinate, &TestReading::ordinate,
             vxConstitutive::ordinateMeasures(mode));
    const bool isCreep = test->mode == Mode::Creep;
    m_stressLabel->setVisible(isCreep);
    m_stress->setVisible(isCreep);
    constexpr int digits = 10;
    m_stress->setText(test->request.stress ? vxPlot::numberText(*test->request.stress, digits) + tr(" Pa") : QString());
    m_weight->setText(vxPlot::numberText(test->request.weight, digits));
    m_preview->setText(readingText(*test));
}

void TestForm::showAxis(const AxisControls& axis, const LoadedTest& test, Choice choice, Understood understood,
                        const std::vector<Measure>& measures) const
{
    const ColumnChoice& chosen = test.request.*choice;
    axis.column->clear();
    axis.column->addItem(tr("by its header"));
    for (std::size_t i = 0; i < test.table->columns.size(); ++i) {
        const std::string& name = test.table->columns[i].name;
        axis.column->addItem(name.empty() ? tr("Column %1").arg(i + 1) : QString::fromStdString(name));
    }
    axis.column->setCurrentIndex(chosen.column ? static_cast<int>(*chosen.column) + 1 : 0);
    axis.measure->clear();
    axis.measure->addItem(tr("by its header"));
    for (const Measure measure : measures)
        axis.measure->addItem(constitutiveWord(vxConstitutive::measureRecord(measure).name), static_cast<int>(measure));
    axis.measure->setCurrentIndex(
        chosen.measure ? std::max(axis.measure->findData(static_cast<int>(*chosen.measure)), 0) : 0);
    axis.unit->setText(QString::fromStdString(chosen.unit.value_or("")));
    axis.unit->setPlaceholderText(QString::fromStdString((test.reading.*understood).unit.value_or("")));
    const bool isKnown = test.mode.has_value();
    for (QWidget* const widget :
         {static_cast<QWidget*>(axis.column), static_cast<QWidget*>(axis.measure), static_cast<QWidget*>(axis.unit)})
        widget->setEnabled(isKnown);
}

} // namespace vxInspector
