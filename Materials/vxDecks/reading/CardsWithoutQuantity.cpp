#include "reading/CardsWithoutQuantity.h"

#include "reading/KeywordNames.h"

#include <set>

namespace vxDecks {

namespace {

constexpr const char* cards[] = {
    "*ANNEAL TEMPERATURE",
    "*BRITTLE CRACKING",
    "*BRITTLE FAILURE",
    "*BRITTLE SHEAR",
    "*CAP HARDENING",
    "*CAP PLASTICITY",
    "*CONCRETE",
    "*CRUSHABLE FOAM",
    "*CYCLIC HARDENING",
    "*DAMAGE EVOLUTION",
    "*DAMAGE INITIATION",
    "*DAMAGE STABILIZATION",
    "*DAMPING",
    "*DEFORMATION PLASTICITY",
    "*DEPVAR",
    "*DRUCKER PRAGER",
    "*DRUCKER PRAGER HARDENING",
    "*EOS",
    "*EXPANSION",
    "*FAIL STRAIN",
    "*FAIL STRESS",
    "*HYPERFOAM",
    "*HYSTERESIS",
    "*INELASTIC HEAT FRACTION",
    "*JOULE HEAT FRACTION",
    "*LATENT HEAT",
    "*LOW DENSITY FOAM",
    "*MOHR COULOMB",
    "*MOHR COULOMB HARDENING",
    "*MULLINS EFFECT",
    "*NO COMPRESSION",
    "*NO TENSION",
    "*ORNL",
    "*POTENTIAL",
    "*RATE DEPENDENT",
    "*SHEAR FAILURE",
    "*SPECIFIC GAS CONSTANT",
    "*SWELLING",
    "*TENSILE FAILURE",
    "*TRIAXIAL TEST DATA",
    "*UNIAXIAL TEST DATA",
    "*BIAXIAL TEST DATA",
    "*PLANAR TEST DATA",
    "*VOLUMETRIC TEST DATA",
    "*SHEAR TEST DATA",
    "*USER DEFINED FIELD",
    "*USER MATERIAL",
};

} // namespace

bool isCardWithoutQuantity(const std::string& keyword)
{
    static const std::set<std::string> all = [] {
        std::set<std::string> made;
        for (const char* const card : cards)
            made.insert(keywordOf(card));
        return made;
    }();
    return all.count(keyword) != 0;
}

} // namespace vxDecks
