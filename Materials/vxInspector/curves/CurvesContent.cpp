#include "curves/CurvesContent.h"

#include "curves/ConstitutiveTexts.h"
#include "curves/CurveRanges.h"
#include "values/ValueTable.h"
#include "values/ValueText.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxPlot/CurvePlot.h"

#include <QCoreApplication>

#include <algorithm>
#include <deque>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Finding;
using vxConstitutive::Mode;
using vxConstitutive::Model;
using vxConstitutive::ModelKind;
using vxConstitutive::Range;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::CurvesContent", text);
}

bool isRubber(const Model& model)
{
    const ModelKind kind = model.kind();
    return kind == ModelKind::NeoHooke || kind == ModelKind::MooneyRivlin || kind == ModelKind::ArrudaBoyce;
}

/// A material with its models.
struct Modelled
{
    const InspectedMaterial& inspected;
    vxConstitutive::MaterialModels models;
};

/// Collects the curves and findings of several materials.
class Curves
{
public:
    Curves(const std::vector<InspectedMaterial>& materials, const CurveSettings& settings,
           const vxUnits::UnitSystem& system)
        : m_settings(settings)
    {
        for (const InspectedMaterial& inspected : materials)
            m_materials.push_back({inspected, vxConstitutive::modelsOf(*inspected.material)});
        chooseModes();
        chooseRange();
        drawCurves();
        m_content.plot = vxPlot::curvePlot(plotRequest(system));
        tellFindings();
        tellSentence();
    }

    CurvesContent take() { return std::move(m_content); }

private:
    void chooseModes()
    {
        std::set<Mode> all;
        bool hasRubber = false;
        for (const Modelled& modelled : m_materials)
            for (const auto& model : modelled.models.models) {
                const std::vector<Mode> modes = model->modes();
                all.insert(modes.begin(), modes.end());
                hasRubber = hasRubber || isRubber(*model);
            }
        m_content.modes.assign(all.begin(), all.end());
        m_content.shown = shownModes(m_content.modes, m_settings.modes, hasRubber);
        const UsualScales usual = usualScales(firstMode());
        m_horizontal = m_settings.horizontal.value_or(usual.horizontal);
        m_vertical = m_settings.vertical.value_or(usual.vertical);
    }

    Mode firstMode() const { return m_content.shown.empty() ? Mode::Uniaxial : m_content.shown.front(); }

    /// Calls a function for each model and mode that is drawn.
    template <class Function>
    void forEachCurve(const Function& function) const
    {
        for (const Modelled& modelled : m_materials)
            for (const Mode mode : m_content.shown)
                if (const Model* const model = modelled.models.find(mode))
                    function(modelled, *model, mode);
    }

    /// The range shows what is typical of each curve, unless the user has chosen another one.
    void chooseRange()
    {
        std::optional<Range> all;
        forEachCurve([&all](const Modelled& modelled, const Model& model, Mode mode) {
            const Range one = usualRange(model, mode, *modelled.inspected.material);
            all = all ? Range{std::min(all->from, one.from), std::max(all->to, one.to)} : one;
        });
        Range range = all.value_or(Range{});
        range.from = m_settings.from.value_or(range.from);
        range.to = m_settings.to.value_or(range.to);
        if (range.from > range.to)
            std::swap(range.from, range.to);
        m_content.range = range;
    }

    void drawCurves()
    {
        forEachCurve([this](const Modelled& modelled, const Model& model, Mode mode) {
            vxConstitutive::CurveRequest request;
            request.mode = mode;
            request.abscissas = abscissasOf(mode, m_content.range, m_horizontal, *modelled.inspected.material);
            request.compressibility = m_settings.compressibility;
            request.stresses = creepStresses();
            m_curves.push_back(model.curve(request));
            m_drawn.push_back({labelOf(modelled.inspected).toStdString(), &m_curves.back()});
            m_of.push_back(&modelled.inspected);
            m_content.canBeIncompressible =
                m_content.canBeIncompressible || isRubber(model) || model.kind() == ModelKind::LinearElasticity;
        });
    }

    static QString labelOf(const InspectedMaterial& inspected)
    {
        const QString label = shortened(inspected.label, 40);
        return inspected.isSuppressed ? tr("%1 (suppressed)").arg(label) : label;
    }

    vxPlot::CurvePlotRequest plotRequest(const vxUnits::UnitSystem& system) const
    {
        vxPlot::CurvePlotRequest request;
        request.curves = m_drawn;
        request.ordinates = m_settings.ordinates;
        request.horizontal = m_horizontal;
        request.vertical = m_vertical;
        request.system = system;
        request.translator = constitutiveTranslator();
        return request;
    }

    void tellFindings()
    {
        TableContent& table = m_content.findings;
        table.headers = QStringList{tr("Kind"), tr("Finding")};
        if (m_materials.size() > 1)
            table.headers << tr("Material");
        for (const Modelled& modelled : m_materials)
            add(modelled.inspected, modelled.models.findings);
        for (std::size_t i = 0; i < m_curves.size(); ++i)
            add(*m_of[i], m_curves[i].findings);
        if (table.rows.empty())
            table.headers.clear();
    }

    /// A finding that holds for several curves of a material is told once.
    void add(const InspectedMaterial& inspected, const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings) {
            const QString text = translated(finding);
            const RowPlace place{inspected.projectId, inspected.objectId, 0};
            const auto isSame = [&](const Row& row) { return row.cells[1].copied() == text && row.place == place; };
            std::vector<Row>& rows = m_content.findings.rows;
            if (std::any_of(rows.begin(), rows.end(), isSame))
                continue;
            const QString kind = severityText(vxConstitutive::findingRecord(finding.id).severity);
            Cell cell = textCell(text);
            cell.text = text;
            rows.push_back({{{kind}, cell, textCell(inspected.label)}, place});
        }
    }

    void tellSentence()
    {
        if (m_materials.size() == 1)
            m_content.sentence = materialSentence(m_materials.front().inspected);
        const auto without = static_cast<std::size_t>(
            std::count_if(m_materials.begin(), m_materials.end(),
                          [](const Modelled& modelled) { return modelled.models.models.empty(); }));
        const auto append = [this](const QString& sentence) {
            m_content.sentence += (m_content.sentence.isEmpty() ? QString() : QStringLiteral(" ")) + sentence;
        };
        if (without == m_materials.size())
            append(without == 1 ? tr("It has no constants of a model with curves: elasticity, hyperelasticity, "
                                     "plasticity, creep or visco-elasticity.")
                                : tr("The materials have no constants of a model with curves: elasticity, "
                                     "hyperelasticity, plasticity, creep or visco-elasticity."));
        else if (without > 0)
            append(tr("Materials without a model: %1.").arg(without));
    }

    const CurveSettings& m_settings;
    std::vector<Modelled> m_materials;
    vxPlot::Scale m_horizontal = vxPlot::Scale::Linear;
    vxPlot::Scale m_vertical = vxPlot::Scale::Linear;
    std::deque<vxConstitutive::Curve> m_curves; // which does not move them
    std::vector<vxPlot::NamedCurve> m_drawn;
    std::vector<const InspectedMaterial*> m_of; ///< the material of each curve
    CurvesContent m_content;
};

/// The modes that are shown first, the most telling ones of a material in front.
std::set<Mode> usualModes(const std::vector<Mode>& available, bool hasRubber)
{
    if (hasRubber)
        return {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar};
    for (const Mode mode : {Mode::Plastic, Mode::Creep, Mode::Relaxation, Mode::Uniaxial})
        if (std::find(available.begin(), available.end(), mode) != available.end())
            return {mode};
    return {available.begin(), available.end()};
}

} // namespace

std::vector<Mode> shownModes(const std::vector<Mode>& available, const std::set<Mode>& chosen, bool hasRubber)
{
    const auto filtered = [&available](const std::set<Mode>& wanted) {
        std::vector<Mode> modes;
        for (const Mode mode : available)
            if (wanted.count(mode) != 0 && (modes.empty() || vxPlot::fitTogether(modes.front(), mode)))
                modes.push_back(mode);
        return modes;
    };
    std::vector<Mode> modes = filtered(chosen);
    return modes.empty() ? filtered(usualModes(available, hasRubber)) : modes;
}

CurvesContent curvesOf(const std::vector<InspectedMaterial>& materials, const CurveSettings& settings,
                       const vxUnits::UnitSystem& system)
{
    return Curves(materials, settings, system).take();
}

} // namespace vxInspector
