#include "vxPlot/CurvePlot.h"

#include "TranslatedText.h"

#include "vxUnits/Unit.h"
#include "vxUnits/Writing.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace vxPlot {

namespace {

using vxConstitutive::Column;
using vxConstitutive::Curve;
using vxConstitutive::Mode;
using vxConstitutive::Quantity;

// The names that quantities of their own have are translated in the context "vxConstitutive::Word".
const std::vector<Ordinates> ordinatesOfStretch{
    {"nominal stress", {Quantity::NominalStress}},
    {"true stress", {Quantity::TrueStress}},
};
const std::vector<Ordinates> ordinatesOfShear{
    {"nominal shear stress", {Quantity::NominalShearStress}},
    {"true shear stress", {Quantity::TrueShearStress}},
    {"normal stress difference", {Quantity::NormalStressDifference}},
};
const std::vector<Ordinates> ordinatesOfHardening{{"true stress", {Quantity::TrueStress}}};
const std::vector<Ordinates> ordinatesOfTensileTest{
    {"nominal stress", {Quantity::NominalStress}},
    {"true stress", {Quantity::TrueStress}},
};
const std::vector<Ordinates> ordinatesOfYield{
    {"Mises stress",
     {Quantity::MisesStress, Quantity::MisesStressCompression, Quantity::MisesStressExtension,
      Quantity::MisesStressOuter, Quantity::MisesStressInner, Quantity::MisesStressPlaneStrain}},
};
const std::vector<Ordinates> ordinatesOfCreep{{"creep strain", {Quantity::CreepStrain}}};
const std::vector<Ordinates> ordinatesOfRates{{"creep strain rate", {Quantity::CreepStrainRate}}};
const std::vector<Ordinates> ordinatesOfRelaxation{{"relaxation modulus", {Quantity::RelaxationModulus}}};
const std::vector<Ordinates> ordinatesOfShearCreep{{"creep compliance", {Quantity::CreepCompliance}}};
const std::vector<Ordinates> ordinatesOfVibration{
    {QT_TRANSLATE_NOOP("vxPlot", "storage and loss modulus"), {Quantity::StorageModulus, Quantity::LossModulus}},
    {"loss factor", {Quantity::LossFactor}},
};

struct PlottedMode
{
    const char* name; ///< in a legend
    const std::vector<Ordinates>& ordinates;
};

// In the order of Mode.
const PlottedMode plottedModes[]{
    {QT_TRANSLATE_NOOP("vxPlot", "uniaxial"), ordinatesOfStretch},
    {QT_TRANSLATE_NOOP("vxPlot", "equibiaxial"), ordinatesOfStretch},
    {QT_TRANSLATE_NOOP("vxPlot", "planar"), ordinatesOfStretch},
    {QT_TRANSLATE_NOOP("vxPlot", "simple shear"), ordinatesOfShear},
    {QT_TRANSLATE_NOOP("vxPlot", "volumetric"), ordinatesOfStretch},
    {QT_TRANSLATE_NOOP("vxPlot", "hardening"), ordinatesOfHardening},
    {QT_TRANSLATE_NOOP("vxPlot", "tensile test"), ordinatesOfTensileTest},
    {QT_TRANSLATE_NOOP("vxPlot", "yield surface"), ordinatesOfYield},
    {QT_TRANSLATE_NOOP("vxPlot", "creep"), ordinatesOfCreep},
    {QT_TRANSLATE_NOOP("vxPlot", "creep rate"), ordinatesOfRates},
    {QT_TRANSLATE_NOOP("vxPlot", "relaxation"), ordinatesOfRelaxation},
    {QT_TRANSLATE_NOOP("vxPlot", "shear creep"), ordinatesOfShearCreep},
    {QT_TRANSLATE_NOOP("vxPlot", "storage and loss"), ordinatesOfVibration},
};

const PlottedMode& plottedMode(Mode mode)
{
    return plottedModes[static_cast<std::size_t>(mode)];
}

std::string replaced(std::string text, const char* place, const std::string& argument)
{
    const std::size_t at = text.find(place);
    return at == std::string::npos ? text : text.replace(at, 2, argument);
}

/// Numbers in SI units as numbers in a unit system.
struct Conversion
{
    std::string unit;
    vxUnits::Converter convert = {};

    std::vector<double> operator()(const std::vector<double>& numbers) const
    {
        std::vector<double> converted(numbers.size());
        convert.convert(numbers.data(), numbers.size(), converted.data());
        return converted;
    }
};

/// A unit that cannot be read is kept, and so is one whose numbers do not change: a frequency in Hz is not shown in 1/s.
Conversion conversionOf(const std::string& unitInSi, const vxUnits::UnitSystem& system)
{
    const auto from = vxUnits::Unit::parse(unitInSi);
    if (!from)
        return {unitInSi};
    const vxUnits::Unit to = system.unitOf(from->dimension());
    const auto converter = vxUnits::Converter::between(*from, to);
    const bool isSame = !converter || (*converter)(1.0) == 1.0;
    return isSame ? Conversion{unitInSi} : Conversion{to.text(), *converter};
}

/// Makes one plot.
class Plotter
{
public:
    explicit Plotter(const CurvePlotRequest& request)
        : m_request(request), m_mode(firstMode(request)), m_ordinates(chosen(request, m_mode))
    {
        collect();
        nameAxes();
        for (const Drawn& drawn : m_drawn)
            add(drawn);
        for (const NamedTest& test : request.tests)
            if (fitTogether(m_mode, test.test->mode))
                add(test);
        cutFaint();
    }

    PlotData take() { return std::move(m_plot); }

private:
    /// A column of a curve that is drawn.
    struct Drawn
    {
        const NamedCurve& named;
        const Column& column;
    };

    static Mode firstMode(const CurvePlotRequest& request)
    {
        if (!request.curves.empty())
            return request.curves.front().curve->mode;
        return request.tests.empty() ? Mode::Uniaxial : request.tests.front().test->mode;
    }

    static const Ordinates& chosen(const CurvePlotRequest& request, Mode mode)
    {
        const std::vector<Ordinates>& all = ordinatesOf(mode);
        return all[std::min(request.ordinates, all.size() - 1)];
    }

    std::string translated(const char* context, const char* text) const
    {
        return m_request.translator ? m_request.translator(context, text) : text;
    }

    std::string quantityName(const char* english) const
    {
        std::string name = translated("vxConstitutive::Word", english);
        return name == english ? translated("vxPlot", english) : name;
    }

    void collect()
    {
        for (const NamedCurve& named : m_request.curves)
            if (fitTogether(m_mode, named.curve->mode))
                collect(named);
    }

    /// Multiples of a constant cannot share an axis with numbers that have a unit.
    void collect(const NamedCurve& named)
    {
        for (const Column& column : named.curve->columns) {
            const auto& wanted = m_ordinates.quantities;
            if (std::find(wanted.begin(), wanted.end(), column.quantity) == wanted.end())
                continue;
            if (!m_drawn.empty() && m_drawn.front().column.relative != column.relative)
                continue;
            m_drawn.push_back({named, column});
            m_materials.insert(named.name);
            m_modes.insert(named.curve->mode);
            m_columns.insert({column.quantity, column.parameter.value_or(0.0)});
        }
    }

    void nameAxes()
    {
        using namespace vxConstitutive;
        const QuantityRecord& abscissa = quantityRecord(modeRecord(m_mode).abscissa);
        const QuantityRecord& ordinate = quantityRecord(m_ordinates.quantities.front());
        const bool isDrawn = !m_drawn.empty();
        m_x =
            conversionOf(isDrawn ? m_drawn.front().named.curve->columns.front().unit : abscissa.unit, m_request.system);
        m_y = conversionOf(isDrawn ? m_drawn.front().column.unit : ordinate.unit, m_request.system);
        m_plot.title = m_request.title;
        m_plot.x = {relativeName(quantityName(abscissa.name), isDrawn ? &abscissaColumn() : nullptr), m_x.unit,
                    m_request.horizontal};
        m_plot.y = {relativeName(quantityName(m_ordinates.name), isDrawn ? &m_drawn.front().column : nullptr), m_y.unit,
                    m_request.vertical};
    }

    const Column& abscissaColumn() const { return m_drawn.front().named.curve->columns.front(); }

    std::string relativeName(const std::string& name, const Column* column) const
    {
        using vxConstitutive::Relative;
        if (column == nullptr || column->relative == Relative::No)
            return name;
        if (column->relative == Relative::ToCohesion)
            return replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1 / cohesion")), "%1", name);
        return column->quantity == Quantity::CreepCompliance
                   ? replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1 × shear modulus")), "%1", name)
                   : replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1 / shear modulus")), "%1", name);
    }

    std::string columnName(const Column& column) const
    {
        const std::string name = quantityName(vxConstitutive::quantityRecord(column.quantity).name);
        return column.parameter
                   ? replaced(replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1 at %2")), "%1", name), "%2",
                              parameterText(column))
                   : name;
    }

    std::string parameterText(const Column& column) const
    {
        constexpr int digits = 5;
        const bool isTime = column.quantity == Quantity::CreepStrainRate;
        const vxUnits::Unit unit =
            m_request.system.unitOf(isTime ? vxUnits::dimensions::time : vxUnits::dimensions::pressure);
        return vxUnits::writeNumber(*column.parameter, unit, digits) + ' ' + unit.text();
    }

    std::string nameOf(const Drawn& drawn) const
    {
        std::string name =
            m_materials.size() > 1 || (m_modes.size() < 2 && m_columns.size() < 2) ? drawn.named.name : std::string();
        const auto append = [&name](const std::string& part) { name += (name.empty() ? "" : ", ") + part; };
        if (m_modes.size() > 1 || (name.empty() && m_columns.size() < 2))
            append(shortModeName(drawn.named.curve->mode, m_request.translator));
        if (m_columns.size() > 1)
            append(columnName(drawn.column));
        return drawn.named.isMeasured
                   ? name
                   : replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1 (not measured)")), "%1", name);
    }

    void add(const Drawn& drawn)
    {
        const Curve& curve = *drawn.named.curve;
        Series series{nameOf(drawn),
                      SeriesKind::Line,
                      m_plot.series.size(),
                      m_x(curve.columns.front().values),
                      m_y(drawn.column.values),
                      !drawn.named.isMeasured};
        m_styles.emplace(curve.mode, series.style);
        for (const vxConstitutive::Range& range : curve.unstable)
            addBand(range, drawn, series);
        m_plot.series.push_back(std::move(series));
    }

    /// A curve far outside of the measured range must not press the others flat.
    void cutFaint()
    {
        constexpr double room = 0.5; // of the span of the others
        double least = std::numeric_limits<double>::infinity();
        double most = -least;
        for (const Series& series : m_plot.series)
            for (const double y : series.y)
                if (!series.isFaint && std::isfinite(y)) {
                    least = std::min(least, y);
                    most = std::max(most, y);
                }
        const double beyond = room * (most - least);
        if (!(most > least))
            return;
        for (Series& series : m_plot.series)
            if (series.isFaint)
                std::replace_if(
                    series.y.begin(), series.y.end(), [&](double y) { return y < least - beyond || y > most + beyond; },
                    std::numeric_limits<double>::quiet_NaN());
    }

    void addBand(const vxConstitutive::Range& range, const Drawn& drawn, const Series& series)
    {
        const Interval shown{m_x.convert(range.from), m_x.convert(range.to)};
        m_plot.bands.push_back({bandName(drawn), series.style, shown});
    }

    std::string bandName(const Drawn& drawn) const
    {
        if (m_materials.size() < 2)
            return translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "unstable"));
        return replaced(translated("vxPlot", QT_TRANSLATE_NOOP("vxPlot", "%1: unstable")), "%1", drawn.named.name);
    }

    /// Points have the colour of the first curve of their mode.
    void add(const NamedTest& named)
    {
        const auto [style, isNew] = m_styles.emplace(named.test->mode, m_plot.series.size());
        Series series{named.name, SeriesKind::Symbols, style->second, {}, {}, false};
        const std::size_t count = std::min(named.test->abscissas.size(), named.test->ordinates.size());
        series.x.reserve(count);
        series.y.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            const auto [x, y] = pointOf(named.test->mode, named.test->abscissas[i], named.test->ordinates[i]);
            series.x.push_back(m_x.convert(x));
            series.y.push_back(m_y.convert(y));
        }
        m_plot.series.push_back(std::move(series));
    }

    /// Returns a point in the meaning of the curve's columns.
    std::pair<double, double> pointOf(Mode mode, double abscissa, double ordinate) const
    {
        const bool isTrue = m_ordinates.quantities.front() == Quantity::TrueStress;
        if (mode == Mode::Volumetric) {
            const double stretch = std::cbrt(abscissa);
            return {stretch, isTrue ? ordinate : ordinate * stretch * stretch};
        }
        if (isTrue && mode == Mode::Tensile)
            return {abscissa, ordinate * (1.0 + abscissa)};
        if (isTrue && mode != Mode::Plastic)
            return {abscissa, ordinate * abscissa};
        return {abscissa, ordinate};
    }

    const CurvePlotRequest& m_request;
    Mode m_mode;
    const Ordinates& m_ordinates;
    std::vector<Drawn> m_drawn;
    std::set<std::string> m_materials;
    std::set<Mode> m_modes;
    std::set<std::pair<Quantity, double>> m_columns;
    std::map<Mode, std::size_t> m_styles;
    Conversion m_x;
    Conversion m_y;
    PlotData m_plot;
};

} // namespace

const std::vector<Ordinates>& ordinatesOf(Mode mode)
{
    return plottedMode(mode).ordinates;
}

bool fitTogether(Mode one, Mode other)
{
    using vxConstitutive::modeRecord;
    return modeRecord(one).abscissa == modeRecord(other).abscissa && &ordinatesOf(one) == &ordinatesOf(other);
}

std::string shortModeName(Mode mode, const vxUnits::Translator& translator)
{
    const char* const name = plottedMode(mode).name;
    return translator ? translator("vxPlot", name) : name;
}

PlotData curvePlot(const CurvePlotRequest& request)
{
    return Plotter(request).take();
}

} // namespace vxPlot
