#include "curves/CurvesContent.h"

#include "curves/ConstitutiveTexts.h"
#include "curves/CurveRanges.h"
#include "measured/KeptMeasurements.h"
#include "values/ValueTable.h"
#include "values/ValueText.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxConstitutive/UsualRange.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxPlot/CurvePlot.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Finding;
using vxConstitutive::Mode;
using vxConstitutive::Model;
using vxConstitutive::ModelKind;
using vxConstitutive::Range;
using vxConstitutive::TestData;

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
    const DrawnMaterial& inspected;
    vxConstitutive::MaterialModels models;
};

/// Collects the curves, tests and findings of several materials.
class Curves
{
public:
    Curves(const std::vector<DrawnMaterial>& materials, const CurveSettings& settings,
           const vxUnits::UnitSystem& system, CurveCache& cache)
        : m_settings(settings), m_system(system), m_cache(cache)
    {
        m_cache.begin();
        for (const DrawnMaterial& inspected : materials)
            m_materials.push_back({inspected, vxConstitutive::modelsOf(*inspected.material)});
        chooseModes();
        chooseTests();
        chooseRange();
        drawCurves();
        tellParameter();
        m_content.plot = vxPlot::curvePlot(plotRequest());
        tellFindings();
        tellSentence();
    }

    CurvesContent take() { return std::move(m_content); }

private:
    void chooseModes()
    {
        std::set<Mode> all;
        std::set<Mode> measured;
        bool hasRubber = false;
        for (const Modelled& modelled : m_materials) {
            for (const auto& model : modelled.models.models) {
                const std::vector<Mode> modes = model->modes();
                all.insert(modes.begin(), modes.end());
                hasRubber = hasRubber || isRubber(*model);
            }
            for (const TestData& test : testsOf(modelled))
                measured.insert(test.mode);
        }
        all.insert(measured.begin(), measured.end());
        m_content.modes.assign(all.begin(), all.end());
        const bool showsMeasured = m_settings.modes.empty() && !hasRubber;
        m_content.shown = shownModes(m_content.modes, showsMeasured ? measured : m_settings.modes, hasRubber);
        const UsualScales usual = usualScales(firstMode());
        m_horizontal = m_settings.horizontal.value_or(usual.horizontal);
        m_vertical = m_settings.vertical.value_or(usual.vertical);
    }

    static const std::vector<TestData>& testsOf(const Modelled& modelled)
    {
        static const std::vector<TestData> none;
        return modelled.inspected.kept != nullptr ? modelled.inspected.kept->measurements.tests : none;
    }

    void chooseTests()
    {
        for (const Modelled& modelled : m_materials)
            for (const TestData& test : testsOf(modelled)) {
                if (std::count(m_content.shown.begin(), m_content.shown.end(), test.mode) == 0)
                    continue;
                const std::string material =
                    m_materials.size() > 1 ? labelOf(modelled.inspected).toStdString() + ", " : std::string();
                m_tests.push_back({material + test.name, &test});
            }
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

    /// The range shows what is typical of each curve, and all tests, unless the user has chosen another one.
    void chooseRange()
    {
        std::optional<Range> all;
        const auto include = [&all](const Range& one) { all = all ? united(*all, one) : one; };
        forEachCurve([this, &include](const Modelled& modelled, const Model& model, Mode mode) {
            m_ranges.push_back(isRubber(model) ? rangeByTests(modelled, mode) : std::nullopt);
            include(m_ranges.back().value_or(vxConstitutive::usualRange(model, mode, *modelled.inspected.material)));
        });
        for (const vxPlot::NamedTest& named : m_tests)
            if (const auto range = rangeOf(*named.test))
                include(*range);
        Range range = all.value_or(Range{});
        range.from = m_settings.from.value_or(range.from);
        range.to = m_settings.to.value_or(range.to);
        if (range.from > range.to)
            std::swap(range.from, range.to);
        m_content.range = range;
    }

    /// Returns the range of a curve of rubber: somewhat more than that of the tests of its mode; without such tests, that of all
    /// tests. Absent if the material has no tests in the modes of a stretch.
    static std::optional<Range> rangeByTests(const Modelled& modelled, Mode mode)
    {
        constexpr double beyond = 0.1;
        std::optional<Range> own;
        std::optional<Range> all;
        for (const TestData& test : testsOf(modelled)) {
            const auto range = isStretchTest(test.mode) ? rangeOf(test) : std::nullopt;
            if (!range)
                continue;
            all = all ? united(*all, *range) : range;
            if (test.mode == mode)
                own = own ? united(*own, *range) : range;
        }
        if (!isStretchTest(mode) || !all)
            return std::nullopt;
        const Range range = united(own.value_or(*all), {1.0, 1.0});
        if (!own)
            return range;
        return Range{range.from * std::pow(range.from, beyond), range.to + (range.to - 1.0) * beyond};
    }

    static bool isStretchTest(Mode mode)
    {
        return mode == Mode::Uniaxial || mode == Mode::Equibiaxial || mode == Mode::Planar;
    }

    static bool isMeasured(const Modelled& modelled, Mode mode)
    {
        const std::vector<TestData>& tests = testsOf(modelled);
        return std::any_of(tests.begin(), tests.end(), [mode](const TestData& test) { return test.mode == mode; });
    }

    static Range united(const Range& one, const Range& other)
    {
        return {std::min(one.from, other.from), std::max(one.to, other.to)};
    }

    /// Returns the range of a test as its curve is drawn; absent if the test has no points.
    static std::optional<Range> rangeOf(const TestData& test)
    {
        if (test.abscissas.empty())
            return std::nullopt;
        const auto [least, most] = std::minmax_element(test.abscissas.begin(), test.abscissas.end());
        // The curve is drawn against the stretch, and the test is measured with the volume ratio.
        return test.mode == Mode::Volumetric ? Range{std::cbrt(*least), std::cbrt(*most)} : Range{*least, *most};
    }

    /// Returns whether a curve has no tests although the material has tests in other modes that are shown with it.
    bool isBesideTests(const Modelled& modelled, const Model& model, Mode mode) const
    {
        return isRubber(model) && !isMeasured(modelled, mode) && rangeByTests(modelled, mode).has_value();
    }

    /// Returns the range of the next curve. A range of the user is that of all curves.
    Range nextRange() const
    {
        const bool isChosen = m_settings.from || m_settings.to;
        return isChosen ? m_content.range : m_ranges[m_curves.size()].value_or(m_content.range);
    }

    void drawCurves()
    {
        forEachCurve([this](const Modelled& modelled, const Model& model, Mode mode) {
            vxConstitutive::CurveRequest request;
            request.mode = mode;
            request.abscissas = abscissasOf(mode, nextRange(), m_horizontal, *modelled.inspected.material);
            request.compressibility = m_settings.compressibility;
            request.chains = m_settings.chains;
            request.stresses = stressesOfCreep();
            request.time = m_settings.time.value_or(request.time);
            request.cohesion = m_settings.cohesion;
            m_curves.push_back(m_cache.curve(*modelled.inspected.material, model, request));
            m_drawn.push_back({labelOf(modelled.inspected).toStdString(), m_curves.back().get(),
                               !isBesideTests(modelled, model, mode)});
            m_of.push_back(&modelled.inspected);
            m_content.canBeIncompressible =
                m_content.canBeIncompressible || isRubber(model) || model.kind() == ModelKind::LinearElasticity;
            m_content.hasChains = m_content.hasChains || model.kind() == ModelKind::ArrudaBoyce;
            const bool hasFriction = model.kind() == ModelKind::DruckerPrager || model.kind() == ModelKind::MohrCoulomb;
            if (m_content.parameter == CurveParameter::None)
                m_content.parameter = parameterOf(mode, hasFriction);
        });
    }

    void tellParameter()
    {
        if (m_content.parameter == CurveParameter::Stresses)
            m_content.usedParameter = stressesOfCreep();
        else if (m_content.parameter == CurveParameter::Time)
            m_content.usedParameter = {m_settings.time.value_or(vxConstitutive::CurveRequest().time)};
        else if (m_content.parameter == CurveParameter::Cohesion && m_settings.cohesion)
            m_content.usedParameter = {*m_settings.cohesion};
    }

    /// Returns the stresses of the user; if there are none, those of the creep tests; if there are none, the usual ones.
    std::vector<double> stressesOfCreep() const
    {
        if (!m_settings.stresses.empty())
            return m_settings.stresses;
        std::set<double> stresses;
        for (const vxPlot::NamedTest& named : m_tests)
            if (named.test->mode == Mode::Creep)
                stresses.insert(named.test->parameter);
        return stresses.empty() ? creepStresses() : std::vector<double>(stresses.begin(), stresses.end());
    }

    static QString labelOf(const InspectedMaterial& inspected)
    {
        const QString label = shortened(inspected.label, 40);
        return inspected.isSuppressed ? tr("%1 (suppressed)").arg(label) : label;
    }

    vxPlot::CurvePlotRequest plotRequest() const
    {
        vxPlot::CurvePlotRequest request;
        request.curves = m_drawn;
        request.tests = m_tests;
        request.ordinates = m_settings.ordinates;
        request.horizontal = m_horizontal;
        request.vertical = m_vertical;
        request.system = m_system;
        request.translator = constitutiveTranslator();
        return request;
    }

    void tellFindings()
    {
        TableContent& table = m_content.findings;
        table.headers = QStringList{tr("Kind"), tr("Finding")};
        if (m_materials.size() > 1)
            table.headers << tr("Material");
        vxConstitutive::CurveRequest settled;
        settled.cohesion = m_settings.cohesion;
        for (const Modelled& modelled : m_materials) {
            for (const Finding& finding : modelled.models.findings)
                if (!gives(settled, finding))
                    add(modelled.inspected, finding);
            if (modelled.inspected.kept != nullptr && modelled.inspected.kept->fault)
                add(modelled.inspected, vxConstitutive::Severity::Error, faultText(*modelled.inspected.kept->fault));
        }
        for (std::size_t i = 0; i < m_curves.size(); ++i)
            add(*m_of[i], m_curves[i]->findings);
        if (table.rows.empty())
            table.headers.clear();
    }

    /// A constant whose text cannot be read is not missing.
    void add(const InspectedMaterial& inspected, const Finding& finding)
    {
        const auto isOf = [&finding](const UnreadRow& row) {
            const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(row.id);
            return record != nullptr && finding.arguments.size() > 1 && finding.arguments[1] == record->name;
        };
        const std::vector<UnreadRow>& rows = inspected.unreadRows;
        const auto row = std::find_if(rows.begin(), rows.end(), isOf);
        if (finding.id != vxConstitutive::FindingId::ConstantMissing || row == rows.end())
            return add(inspected, std::vector{finding});
        add(inspected, vxConstitutive::Severity::Error,
            tr("The constant %1 cannot be read: \"%2\". %3")
                .arg(constitutiveWord(finding.arguments[1]), row->value, row->reason));
    }

    void add(const InspectedMaterial& inspected, const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings)
            add(inspected, vxConstitutive::findingRecord(finding.id).severity, translated(finding, m_system));
    }

    /// A finding that holds for several curves of a material is told once.
    void add(const InspectedMaterial& inspected, vxConstitutive::Severity severity, const QString& text)
    {
        const RowPlace place{inspected.projectId, inspected.objectId, 0};
        const auto isSame = [&](const Row& row) { return row.cells[1].copied() == text && row.place == place; };
        std::vector<Row>& rows = m_content.findings.rows;
        if (std::any_of(rows.begin(), rows.end(), isSame))
            return;
        Cell cell = textCell(text);
        cell.text = text;
        rows.push_back({{{severityText(severity)}, cell, textCell(inspected.label)}, place});
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
    const vxUnits::UnitSystem& m_system;
    CurveCache& m_cache;
    std::vector<Modelled> m_materials;
    vxPlot::Scale m_horizontal = vxPlot::Scale::Linear;
    vxPlot::Scale m_vertical = vxPlot::Scale::Linear;
    std::vector<std::optional<Range>> m_ranges; ///< of the curves; absent for that of the axis
    std::vector<std::shared_ptr<const vxConstitutive::Curve>> m_curves;
    std::vector<vxPlot::NamedCurve> m_drawn;
    std::vector<vxPlot::NamedTest> m_tests;     ///< of the shown modes
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

CurvesContent curvesOf(const std::vector<DrawnMaterial>& materials, const CurveSettings& settings,
                       const vxUnits::UnitSystem& system, CurveCache& cache)
{
    return Curves(materials, settings, system, cache).take();
}

CurvesContent curvesOf(const std::vector<DrawnMaterial>& materials, const CurveSettings& settings,
                       const vxUnits::UnitSystem& system)
{
    CurveCache none;
    return curvesOf(materials, settings, system, none);
}

} // namespace vxInspector
