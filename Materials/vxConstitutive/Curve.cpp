#include "vxConstitutive/Curve.h"

#include "TranslatedText.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <cmath>

namespace vxConstitutive {

namespace {

const std::vector<ModeRecord>& modeTable()
{
    static const std::vector<ModeRecord> table{
        {Mode::Uniaxial, "uniaxial", QT_TRANSLATE_NOOP("vxConstitutive", "uniaxial tension and compression"),
         Quantity::Stretch},
        {Mode::Equibiaxial, "equibiaxial", QT_TRANSLATE_NOOP("vxConstitutive", "equibiaxial tension"),
         Quantity::Stretch},
        {Mode::Planar, "planar", QT_TRANSLATE_NOOP("vxConstitutive", "planar tension (pure shear)"), Quantity::Stretch},
        {Mode::SimpleShear, "simple-shear", QT_TRANSLATE_NOOP("vxConstitutive", "simple shear"),
         Quantity::AmountOfShear},
        {Mode::Volumetric, "volumetric", QT_TRANSLATE_NOOP("vxConstitutive", "volumetric"), Quantity::Stretch},
        {Mode::Plastic, "plastic", QT_TRANSLATE_NOOP("vxConstitutive", "hardening curve"), Quantity::PlasticStrain},
        {Mode::Tensile, "tensile", QT_TRANSLATE_NOOP("vxConstitutive", "tensile test"), Quantity::EngineeringStrain},
        {Mode::Yield, "yield", QT_TRANSLATE_NOOP("vxConstitutive", "yield surface"), Quantity::Pressure},
        {Mode::Creep, "creep", QT_TRANSLATE_NOOP("vxConstitutive", "creep"), Quantity::Time},
        {Mode::CreepRate, "creep-rate", QT_TRANSLATE_NOOP("vxConstitutive", "creep rate"), Quantity::Stress},
        {Mode::Relaxation, "relaxation", QT_TRANSLATE_NOOP("vxConstitutive", "shear relaxation"), Quantity::Time},
        {Mode::ShearCreep, "shear-creep", QT_TRANSLATE_NOOP("vxConstitutive", "shear creep"), Quantity::Time},
        {Mode::Dynamic, "dynamic", QT_TRANSLATE_NOOP("vxConstitutive", "storage and loss"), Quantity::Frequency},
    };
    return table;
}

const std::vector<QuantityRecord>& quantityTable()
{
    static const std::vector<QuantityRecord> table{
        {Quantity::Stretch, QT_TRANSLATE_NOOP("vxConstitutive", "stretch"), "1"},
        {Quantity::AmountOfShear, QT_TRANSLATE_NOOP("vxConstitutive", "amount of shear"), "1"},
        {Quantity::EngineeringStrain, QT_TRANSLATE_NOOP("vxConstitutive", "engineering strain"), "1"},
        {Quantity::PlasticStrain, QT_TRANSLATE_NOOP("vxConstitutive", "plastic strain"), "1"},
        {Quantity::Pressure, QT_TRANSLATE_NOOP("vxConstitutive", "pressure"), "Pa"},
        {Quantity::Time, QT_TRANSLATE_NOOP("vxConstitutive", "time"), "s"},
        {Quantity::Stress, QT_TRANSLATE_NOOP("vxConstitutive", "stress"), "Pa"},
        {Quantity::Frequency, QT_TRANSLATE_NOOP("vxConstitutive", "frequency"), "Hz"},
        {Quantity::NominalStress, QT_TRANSLATE_NOOP("vxConstitutive", "nominal stress"), "Pa"},
        {Quantity::TrueStress, QT_TRANSLATE_NOOP("vxConstitutive", "true stress"), "Pa"},
        {Quantity::NominalShearStress, QT_TRANSLATE_NOOP("vxConstitutive", "nominal shear stress"), "Pa"},
        {Quantity::TrueShearStress, QT_TRANSLATE_NOOP("vxConstitutive", "true shear stress"), "Pa"},
        {Quantity::NormalStressDifference, QT_TRANSLATE_NOOP("vxConstitutive", "normal stress difference"), "Pa"},
        {Quantity::Slope, QT_TRANSLATE_NOOP("vxConstitutive", "slope"), ""},
        {Quantity::LateralStretch, QT_TRANSLATE_NOOP("vxConstitutive", "lateral stretch"), "1"},
        {Quantity::VolumeRatio, QT_TRANSLATE_NOOP("vxConstitutive", "volume ratio"), "1"},
        {Quantity::MisesStress, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress"), "Pa"},
        {Quantity::MisesStressCompression, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress, compression meridian"),
         "Pa"},
        {Quantity::MisesStressExtension, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress, extension meridian"), "Pa"},
        {Quantity::MisesStressOuter, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress, outer cone"), "Pa"},
        {Quantity::MisesStressInner, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress, inner cone"), "Pa"},
        {Quantity::MisesStressPlaneStrain, QT_TRANSLATE_NOOP("vxConstitutive", "Mises stress, plane strain"), "Pa"},
        {Quantity::CreepStrain, QT_TRANSLATE_NOOP("vxConstitutive", "creep strain"), "1"},
        {Quantity::CreepStrainRate, QT_TRANSLATE_NOOP("vxConstitutive", "creep strain rate"), "1/s"},
        {Quantity::RelaxationModulus, QT_TRANSLATE_NOOP("vxConstitutive", "relaxation modulus"), "Pa"},
        {Quantity::CreepCompliance, QT_TRANSLATE_NOOP("vxConstitutive", "creep compliance"), "1/Pa"},
        {Quantity::StorageModulus, QT_TRANSLATE_NOOP("vxConstitutive", "storage modulus"), "Pa"},
        {Quantity::LossModulus, QT_TRANSLATE_NOOP("vxConstitutive", "loss modulus"), "Pa"},
        {Quantity::LossFactor, QT_TRANSLATE_NOOP("vxConstitutive", "loss factor"), "1"},
    };
    return table;
}

} // namespace

const std::vector<ModeRecord>& modeRecords()
{
    return modeTable();
}

const ModeRecord& modeRecord(Mode mode)
{
    return modeTable()[static_cast<std::size_t>(mode)];
}

std::optional<Mode> findMode(std::string_view key)
{
    for (const ModeRecord& record : modeTable()) {
        if (key == record.key)
            return record.mode;
    }
    return std::nullopt;
}

const std::vector<QuantityRecord>& quantityRecords()
{
    return quantityTable();
}

const QuantityRecord& quantityRecord(Quantity quantity)
{
    return quantityTable()[static_cast<std::size_t>(quantity)];
}

const std::vector<double>* Curve::find(Quantity quantity) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [quantity](const Column& column) { return column.quantity == quantity; });
    return found == columns.end() ? nullptr : &found->values;
}

std::vector<double> evenlySpaced(double from, double to, std::size_t count)
{
    std::vector<double> values(count, from);
    for (std::size_t i = 1; i < count; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count - 1);
        values[i] = from * (1.0 - part) + to * part; // exact at both ends, and without overflow between them
    }
    return values;
}

std::vector<double> spacedByFactor(double from, double to, std::size_t count)
{
    if (!(from * to > 0.0))
        return {};
    std::vector<double> values = evenlySpaced(std::log(std::fabs(from)), std::log(std::fabs(to)), count);
    for (double& value : values)
        value = std::copysign(std::exp(value), from);
    if (count > 0)
        values.front() = from;
    if (count > 1)
        values.back() = to;
    return values;
}

std::string columnName(const Column& column)
{
    std::string name = quantityRecord(column.quantity).name;
    if (column.relative == Relative::ToCohesion)
        name += " / cohesion";
    if (column.relative == Relative::ToShearModulus)
        name += column.quantity == Quantity::CreepCompliance ? " x shear modulus" : " / shear modulus";
    if (column.parameter)
        name += " at " + vxMat::formatGeneral(*column.parameter) +
                (column.quantity == Quantity::CreepStrainRate ? " s" : " Pa");
    return name;
}

} // namespace vxConstitutive
