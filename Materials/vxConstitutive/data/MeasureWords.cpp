#include "data/MeasureWords.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <string_view>

namespace vxConstitutive {

namespace {

/// A word of a header, in capitals, and the measures that it may name. The first row with a possible measure is used.
struct Word
{
    std::string_view word;
    std::vector<Measure> measures;
};

const std::vector<Word>& words()
{
    const std::vector<Measure> strain{Measure::EngineeringStrain, Measure::AmountOfShear, Measure::CreepStrain,
                                      Measure::PlasticStrain};
    const std::vector<Measure> stress{Measure::NominalStress, Measure::Modulus, Measure::TrueStress};
    static const std::vector<Word> table{
        {"STRETCH", {Measure::Stretch}},
        {"LAMBDA", {Measure::Stretch}},
        {"\xCE\xBB", {Measure::Stretch}}, // the Greek letter
        {"RATE", {Measure::StrainRate}},
        {"VOLUMETRIC", {Measure::VolumetricStrain}},
        {"VOLUME", {Measure::VolumeRatio}},
        {"SHEAR STRAIN", {Measure::AmountOfShear}},
        {"AMOUNT OF SHEAR", {Measure::AmountOfShear}},
        {"GAMMA", {Measure::AmountOfShear}},
        {"PLASTIC", {Measure::PlasticStrain}},
        {"CREEP", {Measure::CreepStrain}},
        {"STRAIN", strain},
        {"ELONGATION", strain},
        {"EXTENSION", strain},
        {"DEHNUNG", strain},
        {"EPSILON", strain},
        {"\xCE\xB5", strain},
        {"MODULUS", {Measure::Modulus}},
        {"MODUL", {Measure::Modulus}},
        {"PRESSURE", {Measure::Pressure}},
        {"DRUCK", {Measure::Pressure}},
        {"STRESS", stress},
        {"SPANNUNG", stress},
        {"SIGMA", stress},
        {"\xCF\x83", stress},
        {"TIME", {Measure::Time}},
        {"ZEIT", {Measure::Time}},
    };
    return table;
}

bool hasWord(const std::string& upper, std::initializer_list<std::string_view> list)
{
    return std::any_of(list.begin(), list.end(),
                       [&](std::string_view word) { return upper.find(word) != std::string::npos; });
}

std::optional<Recognised> recognise(Measure measure, bool isTrue, bool isEngineering,
                                    const std::vector<Measure>& possible)
{
    if (measure == Measure::EngineeringStrain && isTrue && contains(possible, Measure::TrueStrain))
        return Recognised{Measure::TrueStrain, true};
    if (measure == Measure::NominalStress && isTrue && contains(possible, Measure::TrueStress))
        return Recognised{Measure::TrueStress, true};
    if (!contains(possible, measure))
        return std::nullopt;
    const bool matters = measure == Measure::EngineeringStrain || measure == Measure::NominalStress;
    return Recognised{measure, isEngineering || !matters};
}

} // namespace

bool contains(const std::vector<Measure>& measures, Measure measure)
{
    return std::find(measures.begin(), measures.end(), measure) != measures.end();
}

std::optional<Recognised> recognise(const std::string& name, const std::vector<Measure>& possible)
{
    const std::string upper = vxMat::toUpperAscii(name);
    const bool isTrue = hasWord(upper, {"TRUE", "LOG", "CAUCHY", "HENCKY", "WAHRE"});
    const bool isEngineering = hasWord(upper, {"ENG", "NOM", "TECH"});
    for (const Word& word : words()) {
        if (upper.find(word.word) == std::string::npos)
            continue;
        for (const Measure measure : word.measures) {
            if (const auto found = recognise(measure, isTrue, isEngineering, possible))
                return found;
        }
    }
    return std::nullopt;
}

} // namespace vxConstitutive
