#include "curves/Curve.h"

#include "curves/CurvePicture.h"
#include "curves/CurveSeries.h"
#include "curves/CurveTable.h"
#include "fits/TestFiles.h"
#include "materials/ModelKeys.h"
#include "vxMaterial/model/NumberText.h"
#include "vxPlot/CurvePlot.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace commandline {

namespace {

/// All curves of a run have no more points together, since they are in memory at the same time.
constexpr std::size_t mostPointsOfAll = 4000000;

CurveChoice choiceOf(const CurveArguments& arguments)
{
    CurveChoice choice{arguments.sources, arguments.materials, std::nullopt};
    if (arguments.model)
        choice.model = readModelKind("--model", *arguments.model);
    return choice;
}

bool isTableName(const std::string& path)
{
    constexpr std::string_view suffix = ".csv";
    const bool isStream = path == standardStream || path.rfind("/dev/", 0) == 0;
    return isStream ||
           (path.size() > suffix.size() &&
            vxMat::equalIgnoringAsciiCase(std::string_view(path).substr(path.size() - suffix.size()), suffix));
}

/// Checks that the name of the output agrees with what is written to it.
void requireKnownSuffix(const CurveArguments& arguments, Form form)
{
    const std::string& path = arguments.output;
    const bool isPicture = pictureFormatOf(path).has_value();
    if (!isPicture && !arguments.measured.empty())
        throw Failure(
            "--measured: only a picture shows measured points; give -o a name that ends in .svg, .png or .pdf");
    if (isPicture && form == Form::Json)
        throw Failure(path + ": --json writes no picture; give another name, or leave out --json");
    if (!isPicture && form == Form::Text && !isTableName(path))
        throw Failure(path + ": the name of the file must end in .csv, .svg, .png or .pdf");
}

/// Checks that the curves fit into memory.
void requireModestSize(const CurveArguments& arguments, const vxConstitutive::CurveRequest& request)
{
    if (request.abscissas.size() * arguments.sources.size() > mostPointsOfAll)
        throw Failure("--points: the curves of one run have at most " + std::to_string(mostPointsOfAll) +
                      " points together");
}

void write(const std::vector<CurveSeries>& series, const vxConstitutive::CurveRequest& request,
           const vxUnits::UnitSystem& system, Form form, const TextSink& sink)
{
    if (form == Form::Json)
        writeCurvesJson(series, request.mode, system, sink);
    else
        writeCsv(series, system, sink);
}

/// Returns whether a list is two whole numbers with nothing but a comma between them, such as "0,1".
bool mayBeDecimalComma(const std::string& list)
{
    const std::size_t comma = list.find(',');
    const auto isWhole = [](std::string_view text) {
        return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
    };
    const std::string_view text = list;
    return comma != std::string::npos && isWhole(text.substr(0, comma)) && isWhole(text.substr(comma + 1));
}

/// Adds a note if a comma of a list may have been meant as a decimal sign.
void noteComma(const std::string& option, const std::optional<std::string>& list, const std::vector<double>& numbers,
               Answer& answer)
{
    if (!list)
        return;
    if (std::adjacent_find(numbers.begin(), numbers.end()) != numbers.end())
        answer.messages.push_back("note: " + option +
                                  " has a number twice in a row; commas separate numbers, the decimal sign is a point");
    else if (mayBeDecimalComma(*list))
        answer.messages.push_back("note: " + option + " " + *list +
                                  ": these are two numbers; the decimal sign is a point");
}

/// Reads the measured tests of a picture. Sets the status Error if a file does not say what is needed.
/// \throws Failure for a test that has other axes than the curves
std::vector<MeasuredTest> readMeasured(const CurveArguments& arguments, vxConstitutive::Mode mode,
                                       const vxUnits::UnitSystem& system, Answer& answer)
{
    TestArguments wanted;
    wanted.files = arguments.measured;
    wanted.mode = arguments.mode;
    std::vector<MeasuredTest> tests = readTests(wanted, system, answer);
    if (answer.status == Status::Error)
        answer.messages.emplace_back("--measured needs columns and units in the header of the file, as in "
                                     "\"stretch [1],nominal stress [MPa]\"");
    for (const MeasuredTest& test : tests) {
        if (!vxPlot::fitTogether(mode, test.data.mode))
            throw Failure("--measured: " + test.file + ": this test has other axes than the mode " +
                          vxConstitutive::modeRecord(mode).key);
    }
    return tests;
}

void requireOtherFiles(const CurveArguments& arguments)
{
    for (const auto* const files : {&arguments.sources, &arguments.measured}) {
        for (const std::string& file : *files) {
            if (isFile(file))
                requireAnotherFile(file, arguments.output);
        }
    }
}

/// What a run draws.
struct Drawn
{
    std::vector<CurveSeries> series;
    std::vector<MeasuredTest> tests;
};

std::string contentOf(const CurveArguments& arguments, const Drawn& drawn, const vxConstitutive::CurveRequest& request,
                      const vxUnits::UnitSystem& system, Form form)
{
    const AbscissaScale scale = arguments.logarithmic ? AbscissaScale::Logarithmic : AbscissaScale::Linear;
    if (const auto format = pictureFormatOf(arguments.output))
        return makePicture(drawn.series, drawn.tests, request.mode, system, scale, *format);
    std::string content;
    write(drawn.series, request, system, form, [&content](const std::string& part) { content += part; });
    return content;
}

/// Adds to `answer` what is doubtful, and sets its status if there is nothing to write.
Drawn draw(const CurveArguments& arguments, const vxConstitutive::CurveRequest& request,
           const vxUnits::UnitSystem& system, Answer& answer)
{
    Drawn drawn;
    noteComma("--at", arguments.at, request.abscissas, answer);
    noteComma("--stress", arguments.stresses, request.stresses, answer);
    drawn.tests = readMeasured(arguments, request.mode, system, answer);
    if (answer.status == Status::Error)
        return drawn;
    drawn.series = drawSeries(choiceOf(arguments), request, system, answer);
    if (drawn.series.empty())
        answer.status = Status::Findings;
    return drawn;
}

} // namespace

Answer printCurves(const CurveArguments& arguments, Form form, const ChosenUnits& units, Existing existing)
{
    requireKnownSuffix(arguments, form);
    const vxConstitutive::CurveRequest request = readCurveRequest(arguments, units.system());
    requireModestSize(arguments, request);
    requireOtherFiles(arguments);
    Answer answer;
    const Drawn drawn = draw(arguments, request, units.system(), answer);
    if (drawn.series.empty())
        return answer;
    if (arguments.output == standardStream)
        write(drawn.series, request, units.system(), form, writeStandardOutput);
    else
        writeProjectFile(arguments.output, contentOf(arguments, drawn, request, units.system(), form), existing);
    return answer;
}

} // namespace commandline
