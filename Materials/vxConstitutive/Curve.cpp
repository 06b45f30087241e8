#include "vxConstitutive/Curve.h"

#include "vxConstitutive/Texts.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <utility>

namespace vxConstitutive {

namespace {

const std::vector<ModeRecord>& modeTable()
{
    static const std::vector<ModeRecord> table{
        {Mode::Uniaxial, "uniaxial", "uniaxial tension and compression", Quantity::Stretch},
        {Mode::Equibiaxial, "equibiaxial", "equibiaxial tension", Quantity::Stretch},
        {Mode::Planar, "planar", "planar tension (pure shear)", Quantity::Stretch},
        {Mode::SimpleShear, "simple-shear", "simple shear", Quantity::AmountOfShear},
        {Mode::Volumetric, "volumetric", "volumetric", Quantity::Stretch},
        {Mode::Plastic, "plastic", "hardening curve", Quantity::PlasticStrain},
        {Mode::Tensile, "tensile", "tensile test", Quantity::EngineeringStrain},
        {Mode::Yield, "yield", "yield surface", Quantity::Pressure},
        {Mode::Creep, "creep", "creep", Quantity::Time},
        {Mode::CreepRate, "creep-rate", "creep rate", Quantity::Stress},
        {Mode::Relaxation, "relaxation", "shear relaxation", Quantity::Time},
        {Mode::ShearCreep, "shear-creep", "shear creep", Quantity::Time},
        {Mode::Dynamic, "dynamic", "storage and loss", Quantity::Frequency},
    };
    return table;
}

const std::vector<QuantityRecord>& quantityTable()
{
    static const std::vector<QuantityRecord> table{
        {Quantity::Stretch, "stretch", "1"},
        {Quantity::AmountOfShear, "amount of shear", "1"},
        {Quantity::EngineeringStrain, "engineering strain", "1"},
        {Quantity::PlasticStrain, "plastic strain", "1"},
        {Quantity::Pressure, "pressure", "Pa"},
        {Quantity::Time, "time", "s"},
        {Quantity::Stress, "stress", "Pa"},
        {Quantity::Frequency, "frequency", "Hz"},
        {Quantity::NominalStress, "nominal stress", "Pa"},
        {Quantity::TrueStress, "true stress", "Pa"},
        {Quantity::NominalShearStress, "nominal shear stress", "Pa"},
        {Quantity::TrueShearStress, "true shear stress", "Pa"},
        {Quantity::NormalStressDifference, "normal stress difference", "Pa"},
        {Quantity::Slope, "slope", ""},
        {Quantity::LateralStretch, "lateral stretch", "1"},
        {Quantity::VolumeRatio, "volume ratio", "1"},
        {Quantity::MisesStress, "Mises stress", "Pa"},
        {Quantity::MisesStressCompression, "Mises stress, compression meridian", "Pa"},
        {Quantity::MisesStressExtension, "Mises stress, extension meridian", "Pa"},
        {Quantity::MisesStressOuter, "Mises stress, outer cone", "Pa"},
        {Quantity::MisesStressInner, "Mises stress, inner cone", "Pa"},
        {Quantity::MisesStressPlaneStrain, "Mises stress, plane strain", "Pa"},
        {Quantity::CreepStrain, "creep strain", "1"},
        {Quantity::CreepStrainRate, "creep strain rate", "1/s"},
        {Quantity::RelaxationModulus, "relaxation modulus", "Pa"},
        {Quantity::CreepCompliance, "creep compliance", "1/Pa"},
        {Quantity::StorageModulus, "storage modulus", "Pa"},
        {Quantity::LossModulus, "loss modulus", "Pa"},
        {Quantity::LossFactor, "loss factor", "1"},
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
        if (vxMat::equalIgnoringAsciiCase(key, record.key))
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

bool gives(const CurveRequest& request, const Finding& finding)
{
    return finding.id == FindingId::CohesionMissing && request.cohesion.has_value();
}

std::string columnName(const Column& column, const vxUnits::Translator& translator)
{
    std::string name = translatedWord(quantityRecord(column.quantity).name, translator);
    const auto apply = [&](const char* pattern, std::vector<std::string> arguments) {
        const std::string text = translatedWord(pattern, translator);
        name = vxUnits::Message{"", text.c_str(), std::move(arguments)}.text();
    };
    if (column.relative == Relative::ToCohesion)
        apply("%1 / cohesion", {name});
    if (column.relative == Relative::ToShearModulus)
        apply(column.quantity == Quantity::CreepCompliance ? "%1 x shear modulus" : "%1 / shear modulus", {name});
    if (column.parameter)
        apply(column.quantity == Quantity::CreepStrainRate ? "%1 at %2 s" : "%1 at %2 Pa",
              {name, vxMat::formatGeneral(*column.parameter)});
    return name;
}

} // namespace vxConstitutive
