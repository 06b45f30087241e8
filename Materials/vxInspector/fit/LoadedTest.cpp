#include "fit/LoadedTest.h"

#include "curves/ConstitutiveTexts.h"
#include "vxUnits/Unit.h"

#include <QCoreApplication>
#include <QStringList>

#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Axis;
using vxConstitutive::Mode;
using vxConstitutive::Question;
using vxConstitutive::QuestionKind;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::LoadedTest", text);
}

QString columnText(const LoadedTest& test, const vxConstitutive::ColumnChoice& choice)
{
    if (!choice.column || *choice.column >= test.table->columns.size())
        return {};
    const vxConstitutive::TableColumn& column = test.table->columns[*choice.column];
    const QString name = column.name.empty() ? tr("column %1").arg(*choice.column + 1)
                                             : tr(R"("%1")").arg(QString::fromStdString(column.name));
    if (!choice.measure || !choice.unit)
        return name;
    const char* const measure = vxConstitutive::measureRecord(*choice.measure).name;
    return tr("%1 as %2 in %3")
        .arg(name, QCoreApplication::translate("vxConstitutive", measure), QString::fromStdString(*choice.unit));
}

QString questionText(const Question& question)
{
    if (question.kind == QuestionKind::WhichStress)
        return tr("Enter the stress of the creep test.");
    const bool isAbscissa = question.axis == Axis::Abscissa;
    if (question.kind == QuestionKind::WhichColumn)
        return isAbscissa ? tr("Choose the column of the horizontal axis.")
                          : tr("Choose the column of the vertical axis.");
    if (question.kind == QuestionKind::WhichMeasure)
        return isAbscissa ? tr("Choose what the column of the horizontal axis measures.")
                          : tr("Choose what the column of the vertical axis measures.");
    return isAbscissa ? tr("Enter the unit of the horizontal axis.") : tr("Enter the unit of the vertical axis.");
}

} // namespace

std::optional<double> unitFactor(std::string_view unit, vxConstitutive::Dimension dimension)
{
    static const vxUnits::Dimension dimensions[]{vxUnits::dimensions::none, vxUnits::dimensions::pressure,
                                                 vxUnits::dimensions::time,
                                                 vxUnits::dimensions::none / vxUnits::dimensions::time};
    const auto read = vxUnits::Unit::parse(unit);
    if (!read || read->isTemperatureScale() || read->dimension() != dimensions[static_cast<std::size_t>(dimension)])
        return std::nullopt;
    return read->factor();
}

LoadedTest loadTest(const QString& name, const std::string& bytes)
{
    LoadedTest test;
    test.table = std::make_shared<vxConstitutive::TestTable>(vxConstitutive::readTestTable(bytes, unitFactor));
    test.request.name = name.toStdString();
    return test;
}

void readAgain(LoadedTest& test)
{
    test.reading = {};
    if (!test.mode)
        return;
    test.request.mode = *test.mode;
    test.reading = vxConstitutive::takeTest(*test.table, test.request, unitFactor);
}

QString readingText(const LoadedTest& test)
{
    QStringList lines;
    lines << tr("%1 columns, %2 rows.").arg(test.table->columns.size()).arg(test.table->rows());
    if (!test.mode && !test.table->columns.empty())
        lines << tr("Choose which test it is.");
    if (test.reading.data)
        lines << tr("%1 points: %2 against %3.")
                     .arg(test.reading.data->abscissas.size())
                     .arg(columnText(test, test.reading.ordinate), columnText(test, test.reading.abscissa));
    for (const Question& question : test.reading.questions)
        lines << questionText(question);
    for (const auto* const findings : {&test.table->findings, &test.reading.findings})
        for (const vxConstitutive::Finding& finding : *findings)
            lines << translated(finding);
    return lines.join(QLatin1Char('\n'));
}

std::vector<Mode> measuredModes()
{
    std::vector<Mode> modes;
    for (const vxConstitutive::ModeRecord& record : vxConstitutive::modeRecords())
        if (!vxConstitutive::abscissaMeasures(record.mode).empty())
            modes.push_back(record.mode);
    return modes;
}

} // namespace vxInspector
