#include "curves/CurveSeries.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "materials/Findings.h"
#include "program/Files.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::Finding;
using vxConstitutive::Model;
using vxMat::PropertyId;

/// The switches of the models, in the order in which their curves are drawn.
constexpr std::array<std::int32_t, 7> modelSwitches{
    PropertyId::IsotropicElasticity, PropertyId::NeoHooke, PropertyId::MooneyRivlin,   PropertyId::ArrudaBoyce,
    PropertyId::Plasticity,          PropertyId::Creep,    PropertyId::ViscoElasticity};

/// Returns a copy of a material that has no other model than that of a switch, so that all findings are about this one.
vxMat::MaterialBase& reduceTo(std::int32_t modelSwitch, const vxMat::MaterialBase& material, vxMat::MaterialBase& copy)
{
    copy.copyAllFrom(material);
    for (const std::int32_t other : modelSwitches) {
        if (other != modelSwitch && copy.hasProperty(other))
            copy.removeProperty(copy.findProperty(other));
    }
    return copy;
}

bool hasValue(const vxConstitutive::Curve& curve)
{
    // The first column is the abscissa.
    return std::any_of(curve.columns.begin() + (curve.columns.empty() ? 0 : 1), curve.columns.end(),
                       [](const vxConstitutive::Column& column) {
                           return std::any_of(column.values.begin(), column.values.end(),
                                              [](double value) { return std::isfinite(value); });
                       });
}

bool hasMode(const Model& model, vxConstitutive::Mode mode)
{
    const auto modes = model.modes();
    return std::find(modes.begin(), modes.end(), mode) != modes.end();
}

/// Draws the curves of materials one after another.
class Drawing
{
public:
    Drawing(const CurveChoice& choice, const vxConstitutive::CurveRequest& request, const vxUnits::UnitSystem& system,
            Answer& answer)
        : m_choice(choice), m_request(request), m_system(system), m_answer(answer)
    {}

    void add(const std::string& source, std::optional<std::uint32_t> number, const std::string& label,
             const vxMat::MaterialBase& material);

    std::vector<CurveSeries> take() { return std::move(m_series); }

private:
    void draw(const Model& model, CurveSeries series);
    void addFailed(const std::string& title, const std::vector<std::string>& modes) const;

    const CurveChoice& m_choice;
    const vxConstitutive::CurveRequest& m_request;
    const vxUnits::UnitSystem& m_system;
    Answer& m_answer;
    std::vector<CurveSeries> m_series;
};

/// Returns the name of a material in messages.
std::string nameIn(const std::string& source, std::optional<std::uint32_t> number, const std::string& label)
{
    const std::string file = source.empty() ? "" : source + ": ";
    return file + (number ? std::to_string(*number) + " " : "") + label;
}

void Drawing::add(const std::string& source, std::optional<std::uint32_t> number, const std::string& label,
                  const vxMat::MaterialBase& material)
{
    const std::string title = nameIn(source, number, label);
    bool isDrawn = false;
    std::vector<std::string> modes;
    for (const std::int32_t modelSwitch : modelSwitches) {
        if (!material.hasProperty(modelSwitch))
            continue;
        vxMat::MaterialBase copy;
        vxConstitutive::MaterialModels models = vxConstitutive::modelsOf(reduceTo(modelSwitch, material, copy));
        if (models.models.empty())
            m_answer.add(messagesAbout(title, models.findings, m_system));
        for (const auto& model : models.models) {
            if (m_choice.model && model->kind() != *m_choice.model)
                continue;
            for (const vxConstitutive::Mode mode : model->modes())
                modes.emplace_back(vxConstitutive::modeRecord(mode).key);
            if (!hasMode(*model, m_request.mode))
                continue;
            isDrawn = true;
            draw(*model, {source, number, label, model->kind(), model->constants(), models.findings, {}, {}});
        }
    }
    if (!isDrawn)
        addFailed(title, modes);
}

void Drawing::draw(const Model& model, CurveSeries series)
{
    series.curve = model.curve(m_request);
    series.findings.erase(std::remove_if(series.findings.begin(), series.findings.end(),
                                         [this](const Finding& finding) { return gives(m_request, finding); }),
                          series.findings.end());
    std::vector<Finding> own = std::move(series.curve.findings);
    series.curve.findings.clear();
    series.findings.insert(series.findings.end(), own.begin(), own.end());
    m_answer.add(messagesAbout(nameIn(series.source, series.number, series.material), series.findings, m_system));
    if (hasValue(series.curve))
        m_series.push_back(std::move(series));
}

void Drawing::addFailed(const std::string& title, const std::vector<std::string>& modes) const
{
    std::string possible;
    std::set<std::string> seen;
    for (const std::string& mode : modes) {
        if (seen.insert(mode).second)
            possible += (possible.empty() ? "; it has " : ", ") + mode;
    }
    const std::string model = m_choice.model
                                  ? "model " + std::string(modelRecord(*m_choice.model).key) + " with a curve"
                                  : "model with a curve";
    m_answer.messages.push_back(title + ": has no " + model + " in the mode " +
                                vxConstitutive::modeRecord(m_request.mode).key + possible);
}

/// Chooses materials of files by their labels, otherwise by their numbers.
class Selection
{
public:
    explicit Selection(const std::vector<std::string>& wanted) : m_wanted(wanted) {}

    bool has(const FileMaterial& material)
    {
        if (m_wanted.empty())
            return true;
        const bool found = note(material.label);
        return note(std::to_string(material.number)) || found;
    }

    /// \throws Failure if no file had one of the materials
    void requireAll() const
    {
        for (const std::string& one : m_wanted) {
            if (m_found.count(one) == 0)
                throw Failure("--material: no file has a material with the label or number \"" + one + "\"");
        }
    }

private:
    bool note(const std::string& name)
    {
        if (std::find(m_wanted.begin(), m_wanted.end(), name) == m_wanted.end())
            return false;
        m_found.insert(name);
        return true;
    }

    const std::vector<std::string>& m_wanted;
    std::set<std::string> m_found;
};

void addFile(const std::string& path, Selection& selection, Drawing& drawing, Answer& answer)
{
    const MaterialFile file = readMaterials(path);
    answer.add(file.doubts);
    if (file.materials.empty())
        answer.messages.push_back(path + ": holds no materials");
    for (const FileMaterial& material : file.materials) {
        if (!selection.has(material))
            continue;
        if (material.object.suppressed)
            answer.messages.push_back("note: " + nameIn(path, material.number, material.label) +
                                      ": is suppressed, and drawn");
        drawing.add(path, material.number, material.label, *material.entry->material);
    }
}

/// A part of the title of a curve.
using TitlePart = std::function<std::string(const CurveSeries&)>;

/// Adds a part to the titles that several curves have and that it tells apart.
void addToRepeated(std::vector<CurveSeries>& series, const TitlePart& part)
{
    std::map<std::string, std::set<std::string>> parts;
    for (const CurveSeries& one : series)
        parts[one.title].insert(part(one));
    for (CurveSeries& one : series) {
        if (const std::string text = part(one); parts[one.title].size() > 1 && !text.empty())
            one.title += " (" + text + ")";
    }
}

void addTitles(std::vector<CurveSeries>& series)
{
    for (CurveSeries& one : series)
        one.title = printable(one.material);
    addToRepeated(series, [](const CurveSeries& one) { return std::string(modelRecord(one.model).name); });
    addToRepeated(series, [](const CurveSeries& one) { return one.number ? std::to_string(*one.number) : ""; });
    addToRepeated(series, [](const CurveSeries& one) { return printable(one.source); });
    addToRepeated(series, [&series](const CurveSeries& one) { return std::to_string(&one - series.data() + 1); });
}

} // namespace

std::vector<CurveSeries> drawSeries(const CurveChoice& choice, const vxConstitutive::CurveRequest& request,
                                    const vxUnits::UnitSystem& system, Answer& answer)
{
    const MaterialNames names;
    Drawing drawing(choice, request, system, answer);
    Selection selection(choice.materials);
    for (const std::string& source : choice.sources) {
        if (const auto type = names.find(source))
            drawing.add({}, std::nullopt, names.get(*type).name, names.get(*type));
        else if (isFile(source))
            addFile(source, selection, drawing, answer);
        else
            throw Failure(names.unknownNameOrFile(source));
    }
    selection.requireAll();
    std::vector<CurveSeries> series = drawing.take();
    addTitles(series);
    return series;
}

} // namespace commandline
