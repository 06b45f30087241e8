#include "fit/LoadedTest.h"

#include "curves/ConstitutiveTexts.h"
#include "vxConstitutive/data/UnitFactor.h"

#include <QCoreApplication>
#include <QStringList>

#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Axis;
using vxConstitutive::Measure;
using vxConstitutive::Mode;
using vxConstitutive::Question;
using vxConstitutive::QuestionKind;
using vxConstitutive::TestReading;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::LoadedTest", text);
}

QString columnText(const LoadedTest& test, const vxConstitutive::ColumnChoice& choice)
{
    if (!choice.column || *choice.column >= test.table->columns.size())
        return {};
    const vxConstitutive::TableColumn& column = test.table->columns[*choice.column];
    QString name = column.name.empty() ? tr("column %1").arg(*choice.column + 1)
                                       : tr(R"("%1")").arg(QString::fromStdString(column.name));
    if (!choice.measure || !choice.unit)
        return name;
    return tr("%1 as %2 in %3")
        .arg(name, constitutiveWord(vxConstitutive::measureRecord(*choice.measure).name),
             QString::fromStdString(*choice.unit));
}

/// Names a column that has no name of a file by what it measures.
void nameColumn(vxConstitutive::TableColumn& column, Measure measure)
{
    if (column.name.empty())
        column.name = constitutiveWord(vxConstitutive::measureRecord(measure).name).toStdString();
}

/// Returns whether a finding asks what a question of the reading asks too.
bool isQuestion(vxConstitutive::FindingId id)
{
    using vxConstitutive::FindingId;
    return id == FindingId::ColumnNeeded || id == FindingId::MeasureNeeded || id == FindingId::UnitNeeded ||
           id == FindingId::StressOfTestNeeded;
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

LoadedTest loadTest(const QString& name, const std::string& bytes)
{
    LoadedTest test;
    test.table =
        std::make_shared<vxConstitutive::TestTable>(vxConstitutive::readTestTable(bytes, vxConstitutive::unitFactor));
    test.request.name = name.toStdString();
    return test;
}

LoadedTest keptTest(const vxConstitutive::TestData& data)
{
    vxConstitutive::TableOfTest made = vxConstitutive::tableOfTest(data, vxConstitutive::unitFactor);
    nameColumn(made.table.columns[0], *made.request.abscissa.measure);
    nameColumn(made.table.columns[1], *made.request.ordinate.measure);
    LoadedTest test;
    test.request = std::move(made.request);
    test.table = std::make_shared<vxConstitutive::TestTable>(std::move(made.table));
    test.mode = data.mode;
    if (data.abscissas.size() <= mostReadAtOnce)
        readAgain(test);
    test.reading.abscissa = test.request.abscissa;
    test.reading.ordinate = test.request.ordinate;
    test.reading.data = data;
    test.isKept = true;
    return test;
}

std::function<void()> readingLater(LoadedTest& test)
{
    test.reading = {};
    test.request.mode = test.mode.value_or(Mode::Uniaxial);
    test.pending = std::make_shared<TestReading>();
    return [table = test.table, request = test.request, into = test.pending] {
        *into = vxConstitutive::takeTest(*table, request, vxConstitutive::unitFactor);
    };
}

void readAgain(LoadedTest& test)
{
    test.reading = {};
    test.pending = nullptr;
    if (!test.mode)
        return;
    test.request.mode = *test.mode;
    test.reading = vxConstitutive::takeTest(*test.table, test.request, vxConstitutive::unitFactor);
}

QString readingText(const LoadedTest& test)
{
    QStringList lines;
    lines << tr("%1 columns, %2 rows.").arg(test.table->columns.size()).arg(test.table->rows());
    if (test.pending != nullptr)
        lines << tr("The test is being read.");
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
            if (!isQuestion(finding.id))
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
