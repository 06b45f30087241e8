#include "Curve.h"

#include "CurvePicture.h"
#include "CurveSeries.h"
#include "CurveTable.h"

#include "vxMaterial/model/NumberText.h"

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
void requireKnownSuffix(const std::string& path, Form form)
{
    const bool isPicture = pictureFormatOf(path).has_value();
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

} // namespace

Answer printCurves(const CurveArguments& arguments, Form form, const ChosenUnits& units, Existing existing)
{
    requireKnownSuffix(arguments.output, form);
    const vxConstitutive::CurveRequest request = readCurveRequest(arguments, units.system());
    requireModestSize(arguments, request);
    for (const std::string& source : arguments.sources) {
        if (isFile(source))
            requireAnotherFile(source, arguments.output);
    }
    Answer answer;
    const std::vector<CurveSeries> series = drawSeries(choiceOf(arguments), request, units.system(), answer);
    if (series.empty()) {
        answer.status = Status::Findings;
        return answer;
    }
    if (arguments.output == standardStream) {
        write(series, request, units.system(), form, writeStandardOutput);
        return answer;
    }
    std::string content;
    if (const auto format = pictureFormatOf(arguments.output)) {
        const AbscissaScale scale = arguments.logarithmic ? AbscissaScale::Logarithmic : AbscissaScale::Linear;
        content = makePicture(series, request.mode, units.system(), scale, *format);
    } else {
        write(series, request, units.system(), form, [&content](const std::string& part) { content += part; });
    }
    writeProjectFile(arguments.output, content, existing);
    return answer;
}

} // namespace commandline
