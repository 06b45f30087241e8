#include "fits/TestFiles.h"

#include "materials/Findings.h"
#include "materials/ModelKeys.h"
#include "program/Arguments.h"
#include "program/Files.h"
#include "units/ShownUnits.h"
#include "vxConstitutive/data/UnitFactor.h"
#include "vxMaterial/model/NumberText.h"

#include <QFile>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::Axis;
using vxConstitutive::ColumnChoice;
using vxConstitutive::Measure;
using vxConstitutive::Mode;
using vxConstitutive::Question;
using vxConstitutive::QuestionKind;
using vxConstitutive::TestReading;
using vxConstitutive::TestTable;
using vxUnits::UnitSystem;

/// An argument that names a test.
struct TestName
{
    std::string argument;
    std::string file;
    Mode mode;
    std::string position; ///< from 1
};

bool isMeasured(Mode mode)
{
    return !vxConstitutive::abscissaMeasures(mode).empty();
}

std::string measuredModes()
{
    std::string keys;
    for (const vxConstitutive::ModeRecord& record : vxConstitutive::modeRecords()) {
        if (isMeasured(record.mode))
            keys += (keys.empty() ? "" : ", ") + std::string(record.key);
    }
    return keys;
}

Mode readMeasuredMode(const std::string& option, const std::string& key)
{
    const auto mode = vxConstitutive::findMode(key);
    if (!mode || !isMeasured(*mode))
        throw Failure(option + ": \"" + key + "\" is not a test; the tests are " + measuredModes());
    return *mode;
}

bool exists(const std::string& path)
{
    return QFile::exists(QFile::decodeName(path.c_str()));
}

/// Splits MODE=FILE. A file whose name has an equals sign is taken as it is if it exists.
TestName readName(const std::string& argument, const std::optional<std::string>& mode, std::size_t position)
{
    const std::size_t sign = argument.find('=');
    const bool hasSign = sign != std::string::npos && argument.find('/') > sign;
    const bool hasMode = hasSign && (vxConstitutive::findMode(argument.substr(0, sign)) || !exists(argument));
    const std::string text = std::to_string(position);
    if (hasMode)
        return {argument, argument.substr(sign + 1), readMeasuredMode(argument, argument.substr(0, sign)), text};
    if (!mode)
        throw Failure(argument + ": say which test this is: --mode MODE or MODE=" + argument + "; MODE is one of " +
                      measuredModes());
    return {argument, argument, readMeasuredMode("--mode", *mode), text};
}

std::vector<TestName> readNames(const TestArguments& arguments)
{
    std::vector<TestName> names;
    for (const std::string& file : arguments.files)
        names.push_back(readName(file, arguments.mode, names.size() + 1));
    return names;
}

bool means(const std::string& key, const TestName& test)
{
    return key == test.argument || key == test.file || key == test.position ||
           key == vxConstitutive::modeRecord(test.mode).key;
}

/// Finds the values of options for single tests.
class OptionReader
{
public:
    explicit OptionReader(const std::vector<TestName>& tests) : m_tests(tests) {}

    /// Returns the value for a test: the last one that is about this test, otherwise the one about all tests. Throws
    /// Failure if there are two about all tests: whoever gives a value per file means one for each.
    std::optional<std::string> find(const std::string& option, const std::vector<std::string>& values,
                                    const TestName& test) const
    {
        std::optional<std::string> general;
        std::optional<std::string> own;
        for (const std::string& value : values) {
            const std::size_t sign = signOf(value);
            if (sign == std::string::npos) {
                if (general && *general != value)
                    throw Failure(std::string(option)
                                      .append(": \"")
                                      .append(*general)
                                      .append("\" and \"")
                                      .append(value)
                                      .append("\" are both for all tests; say for which test each is, such as ")
                                      .append(option)
                                      .append(" \"1=")
                                      .append(*general)
                                      .append("\""));
                general = value;
            } else if (means(value.substr(0, sign), test))
                own = value.substr(sign + 1);
        }
        return own ? own : general;
    }

private:
    /// Returns the place of the last equals sign with a test in front; std::string::npos if there is none.
    std::size_t signOf(const std::string& value) const
    {
        std::size_t sign = value.rfind('=');
        while (sign != std::string::npos) {
            const std::string key = value.substr(0, sign);
            if (std::any_of(m_tests.begin(), m_tests.end(), [&](const TestName& test) { return means(key, test); }))
                return sign;
            sign = sign == 0 ? std::string::npos : value.rfind('=', sign - 1);
        }
        return std::string::npos;
    }

    const std::vector<TestName>& m_tests;
};

/// A word for a character that is hard to type.
struct CharacterWord
{
    const char* word;
    char character;
};

char readCharacter(const std::string& option, const std::string& text, const std::vector<CharacterWord>& words)
{
    std::string possible;
    for (const CharacterWord& word : words) {
        if (text == word.word || text == std::string(1, word.character))
            return word.character;
        possible += (possible.empty() ? "" : ", ") + std::string(word.word);
    }
    throw Failure(option + ": \"" + text + "\" is not one of " + possible);
}

std::string fileNameOf(const std::string& path)
{
    return path == standardStream ? "standard input" : path.substr(path.find_last_of('/') + 1);
}

/// Reads the tests of a command line one after another.
class TestReader
{
public:
    TestReader(const TestArguments& arguments, const UnitSystem& system, Answer& answer)
        : m_arguments(arguments), m_system(system), m_answer(answer), m_names(readNames(arguments)), m_options(m_names)
    {}

    std::vector<MeasuredTest> read()
    {
        std::vector<MeasuredTest> tests;
        for (const TestName& name : m_names) {
            for (MeasuredTest& test : read(name))
                tests.push_back(std::move(test));
        }
        return tests;
    }

private:
    std::vector<MeasuredTest> read(const TestName& name);
    std::optional<MeasuredTest> take(const TestName& name, const TestTable& table,
                                     const vxConstitutive::TestReadRequest& request, const std::string& title);
    vxConstitutive::TableOptions tableOptions(const TestName& name) const;
    ColumnChoice choice(Axis axis, const TestName& name, const TestTable& table) const;
    double weight(const TestName& name) const;
    std::string titleOf(const TestName& name) const;
    std::string shortNameOf(const TestName& name) const;
    void refuse(const TestName& name, const TestTable& table, const TestReading& reading);
    void hintAtFormat(const TestName& name, const TestTable& table);

    void hint(const TestName& name, const std::string& text)
    {
        m_answer.messages.push_back(titleOf(name) + ": " + text);
    }

    const TestArguments& m_arguments;
    const UnitSystem& m_system;
    Answer& m_answer;
    std::vector<TestName> m_names;
    OptionReader m_options;
};

vxConstitutive::TableOptions TestReader::tableOptions(const TestName& name) const
{
    vxConstitutive::TableOptions options;
    if (const auto text = m_options.find("--separator", m_arguments.separators, name))
        options.separator = readCharacter(
            "--separator", *text, {{"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}, {"space", ' '}, {"bar", '|'}});
    if (const auto text = m_options.find("--decimal-mark", m_arguments.decimalMarks, name))
        options.decimalMark = readCharacter("--decimal-mark", *text, {{"point", '.'}, {"comma", ','}});
    return options;
}

/// Returns the position of a column that is given by its name, or by its number from 1.
std::size_t readColumn(const std::string& option, const std::string& text, const TestTable& table)
{
    std::string names;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const std::string& name = table.columns[i].name;
        if (vxMat::equalIgnoringAsciiCase(name, text) && !name.empty())
            return i;
        names += (i == 0 ? "" : ", ") + std::to_string(i + 1) + " \"" + name + "\"";
    }
    std::size_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec == std::errc() && read.ptr == end && number >= 1 && number <= table.columns.size())
        return number - 1;
    throw Failure(option + ": there is no column \"" + text + "\"; the columns are " + names);
}

std::string keysOf(const std::vector<Measure>& measures)
{
    std::string keys;
    for (const Measure measure : measures)
        keys += (keys.empty() ? "" : ", ") + std::string(vxConstitutive::measureRecord(measure).key);
    return keys;
}

const std::vector<Measure>& measuresOf(Axis axis, Mode mode)
{
    return axis == Axis::Abscissa ? vxConstitutive::abscissaMeasures(mode) : vxConstitutive::ordinateMeasures(mode);
}

Measure readMeasure(const std::string& option, const std::string& text, Axis axis, Mode mode)
{
    for (const Measure measure : measuresOf(axis, mode)) {
        if (text == vxConstitutive::measureRecord(measure).key)
            return measure;
    }
    throw Failure(option + ": \"" + text + "\" is not measured in this test; possible are " +
                  keysOf(measuresOf(axis, mode)));
}

ColumnChoice TestReader::choice(Axis axis, const TestName& name, const TestTable& table) const
{
    const bool isAbscissa = axis == Axis::Abscissa;
    const std::string letter = isAbscissa ? "--x" : "--y";
    ColumnChoice choice;
    if (const auto text =
            m_options.find(letter + "-column", isAbscissa ? m_arguments.xColumns : m_arguments.yColumns, name))
        choice.column = readColumn(letter + "-column", *text, table);
    if (const auto text =
            m_options.find(letter + "-measure", isAbscissa ? m_arguments.xMeasures : m_arguments.yMeasures, name))
        choice.measure = readMeasure(letter + "-measure", *text, axis, name.mode);
    choice.unit = m_options.find(letter + "-unit", isAbscissa ? m_arguments.xUnits : m_arguments.yUnits, name);
    return choice;
}

double TestReader::weight(const TestName& name) const
{
    const auto text = m_options.find("--weight", m_arguments.weights, name);
    if (!text)
        return 1.0;
    const double weight = readAmount("--weight", *text, "1", m_system);
    if (weight < 0.0)
        throw Failure("--weight: a weight is at least 0");
    return weight;
}

/// Returns the name of a test in messages: its file, and more if several tests have this file.
std::string TestReader::titleOf(const TestName& name) const
{
    const auto count = [&](std::string TestName::*part) {
        return std::count_if(m_names.begin(), m_names.end(),
                             [&](const TestName& other) { return other.*part == name.*part; });
    };
    if (count(&TestName::argument) > 1)
        return name.argument + " (" + name.position + ")";
    return count(&TestName::file) > 1 ? name.argument : name.file;
}

/// Returns the name of a test in results: its file without folders if no other test has such a file.
std::string TestReader::shortNameOf(const TestName& name) const
{
    const std::string file = fileNameOf(name.file);
    const auto same = std::count_if(m_names.begin(), m_names.end(),
                                    [&](const TestName& other) { return fileNameOf(other.file) == file; });
    return same > 1 ? titleOf(name) : file;
}

void TestReader::hintAtFormat(const TestName& name, const TestTable& table)
{
    for (const vxConstitutive::Finding& finding : table.findings) {
        if (finding.id == vxConstitutive::FindingId::OneColumn)
            hint(name, "--separator gives the separator");
        if (finding.id == vxConstitutive::FindingId::CommaMayGroupThousands)
            hint(name, "--decimal-mark gives the decimal mark");
    }
}

/// Says which options give what the file does not tell.
void TestReader::refuse(const TestName& name, const TestTable& table, const TestReading& reading)
{
    for (const Question& question : reading.questions) {
        const std::string option = question.axis == Axis::Abscissa ? "--x" : "--y";
        std::string columns;
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            columns.append(i == 0 ? "" : ", ")
                .append(std::to_string(i + 1))
                .append(" \"")
                .append(table.columns[i].name)
                .append("\"");
        switch (question.kind) {
        case QuestionKind::WhichColumn:
            columns.insert(0, option + "-column gives the column by its name or number: ");
            hint(name, columns);
            break;
        case QuestionKind::WhichMeasure:
            hint(name, option + "-measure gives what is measured: " + keysOf(measuresOf(question.axis, name.mode)));
            break;
        case QuestionKind::WhichUnit:
            hint(name, option + "-unit gives the unit of the column");
            break;
        case QuestionKind::WhichStress:
            hint(name, "--stress gives the stress of the test, such as --stress \"100 MPa\"");
            break;
        }
    }
}

/// Returns a stress in the unit of a system.
std::string stressText(double stress, const UnitSystem& system)
{
    const ShownUnit unit = showIn(system, "Pa");
    return vxMat::formatGeneral(unit.convert(stress)) + " " + unit.text;
}

TestAxis axisOf(const ColumnChoice& choice, const TestTable& table)
{
    const std::size_t column = choice.column.value_or(0);
    return {column, table.columns[column].name, choice.measure.value_or(Measure::Stretch), choice.unit.value_or("1")};
}

std::optional<TestAxis> stressAxisOf(const TestReading& reading, const TestTable& table)
{
    if (!reading.stressColumn)
        return std::nullopt;
    const vxConstitutive::TableColumn& column = table.columns[*reading.stressColumn];
    return TestAxis{*reading.stressColumn, column.name, Measure::NominalStress, column.unit};
}

std::vector<MeasuredTest> TestReader::read(const TestName& name)
{
    const TestTable table = vxConstitutive::readTestTable(readFile(name.file, Content::Any), vxConstitutive::unitFactor,
                                                          tableOptions(name));
    m_answer.add(messagesAbout(titleOf(name), table.findings, m_system));
    hintAtFormat(name, table);
    if (hasError(table.findings) || table.columns.empty()) {
        m_answer.status = Status::Error;
        return {};
    }
    vxConstitutive::TestReadRequest request{
        shortNameOf(name), name.mode,   choice(Axis::Abscissa, name, table), choice(Axis::Ordinate, name, table),
        std::nullopt,      weight(name)};
    if (const auto text = m_options.find("--stress", m_arguments.stresses, name))
        request.stress = readAmount("--stress", *text, "Pa", m_system);
    std::vector<double> stresses;
    if (name.mode == Mode::Creep && !request.stress)
        stresses = vxConstitutive::creepStresses(table, vxConstitutive::unitFactor);
    std::vector<MeasuredTest> tests;
    const auto add = [&](const vxConstitutive::TestReadRequest& one, const std::string& title) {
        if (auto test = take(name, table, one, title))
            tests.push_back(std::move(*test));
    };
    if (stresses.size() < 2) {
        add(request, titleOf(name));
        return tests;
    }
    for (const double stress : stresses) {
        vxConstitutive::TestReadRequest one = request;
        one.stress = stress;
        const std::string text = " (" + stressText(stress, m_system) + ")";
        one.name += text;
        add(one, titleOf(name) + text);
    }
    return tests;
}

std::optional<MeasuredTest> TestReader::take(const TestName& name, const TestTable& table,
                                             const vxConstitutive::TestReadRequest& request, const std::string& title)
{
    TestReading reading = takeTest(table, request, vxConstitutive::unitFactor);
    m_answer.add(messagesAbout(title, reading.findings, m_system));
    refuse(name, table, reading);
    if (!reading.data || hasError(reading.findings)) {
        m_answer.status = Status::Error;
        return std::nullopt;
    }
    std::vector<vxConstitutive::Finding> findings = table.findings;
    findings.insert(findings.end(), reading.findings.begin(), reading.findings.end());
    return MeasuredTest{name.file,
                        *std::move(reading.data),
                        table.format,
                        axisOf(reading.abscissa, table),
                        axisOf(reading.ordinate, table),
                        stressAxisOf(reading, table),
                        reading.leftOut,
                        std::move(findings)};
}

std::string describe(const TestAxis& axis)
{
    const std::string name = axis.name.empty() ? std::to_string(axis.column + 1) : "\"" + printable(axis.name) + "\"";
    return "column " + name + " is the " + vxConstitutive::measureRecord(axis.measure).name + " in " +
           printable(axis.unit);
}

} // namespace

std::string describe(const MeasuredTest& test, const UnitSystem& system)
{
    std::string text = printable(test.data.name) + ": " + vxConstitutive::modeRecord(test.data.mode).name;
    if (test.data.mode == Mode::Creep)
        text += " at " + stressText(test.data.parameter, system);
    const std::size_t points = test.data.abscissas.size();
    text += ", " + std::to_string(points) + (points == 1 ? " point; " : " points; ") + describe(test.abscissa) + ", " +
            describe(test.ordinate);
    if (test.stress)
        text += ", column \"" + printable(test.stress->name) + "\" is the stress in " + printable(test.stress->unit);
    if (test.data.weight != 1.0)
        text += "; weight " + vxMat::formatNumber(test.data.weight);
    return text;
}

std::vector<MeasuredTest> readTests(const TestArguments& arguments, const UnitSystem& system, Answer& answer)
{
    return TestReader(arguments, system, answer).read();
}

} // namespace commandline
