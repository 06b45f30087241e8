#include "reading/KeywordNames.h"

#include "reading/DeckReader.h"
#include "reading/TextOfDeck.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <map>
#include <optional>

namespace vxDecks {

namespace {

/// The keywords of the manual of CalculiX, and those of its relatives that stand in whole models or in materials.
constexpr const char* familyKeywords[] = {
    "ACOUSTIC MEDIUM",
    "AMPLITUDE",
    "ASSEMBLY",
    "BASE MOTION",
    "BEAM GENERAL SECTION",
    "BEAM SECTION",
    "BOUNDARY",
    "BUCKLE",
    "CFD",
    "CFLUX",
    "CHANGE FRICTION",
    "CHANGE MATERIAL",
    "CHANGE PLASTIC",
    "CHANGE SOLID SECTION",
    "CHANGE SURFACE BEHAVIOR",
    "CLEARANCE",
    "CLOAD",
    "COHESIVE SECTION",
    "COMPLEX FREQUENCY",
    "CONDUCTIVITY",
    "CONNECTOR SECTION",
    "CONTACT",
    "CONTACT DAMPING",
    "CONTACT FILE",
    "CONTACT OUTPUT",
    "CONTACT PAIR",
    "CONTACT PRINT",
    "CONTROLS",
    "CORRELATION LENGTH",
    "COUPLED TEMPERATURE-DISPLACEMENT",
    "COUPLING",
    "CRACK PROPAGATION",
    "CREEP",
    "CYCLIC HARDENING",
    "CYCLIC SYMMETRY MODEL",
    "DAMPING",
    "DASHPOT",
    "DEFORMATION PLASTICITY",
    "DENSITY",
    "DEPVAR",
    "DESIGN RESPONSE",
    "DESIGN VARIABLES",
    "DFLUX",
    "DIELECTRIC",
    "DISTRIBUTING",
    "DISTRIBUTING COUPLING",
    "DISTRIBUTION",
    "DLOAD",
    "DRUCKER PRAGER",
    "DRUCKER PRAGER HARDENING",
    "DSLOAD",
    "DYNAMIC",
    "EL FILE",
    "EL PRINT",
    "ELASTIC",
    "ELCOPY",
    "ELECTRICAL CONDUCTIVITY",
    "ELECTROMAGNETICS",
    "ELEMENT",
    "ELEMENT OUTPUT",
    "ELGEN",
    "ELSET",
    "END ASSEMBLY",
    "END INSTANCE",
    "END PART",
    "END STEP",
    "EQUATION",
    "EXPANSION",
    "FEASIBLE DIRECTION",
    "FIELD",
    "FILM",
    "FILTER",
    "FLUID CONSTANTS",
    "FLUID SECTION",
    "FREQUENCY",
    "FRICTION",
    "GAP",
    "GAP CONDUCTANCE",
    "GAP HEAT GENERATION",
    "GEOMETRIC CONSTRAINT",
    "GREEN",
    "HEADING",
    "HEAT TRANSFER",
    "HYPERELASTIC",
    "HYPERFOAM",
    "INITIAL CONDITIONS",
    "INITIAL STRAIN INCREASE",
    "INSTANCE",
    "KINEMATIC",
    "LATENT HEAT",
    "MAGNETIC PERMEABILITY",
    "MASS",
    "MASS FLOW",
    "MATERIAL",
    "MEMBRANE SECTION",
    "MODAL DAMPING",
    "MODAL DYNAMIC",
    "MODEL CHANGE",
    "MOHR COULOMB",
    "MOHR COULOMB HARDENING",
    "MPC",
    "NCOPY",
    "NETWORK MPC",
    "NFILL",
    "NGEN",
    "NO ANALYSIS",
    "NODAL THICKNESS",
    "NODE FILE",
    "NODE OUTPUT",
    "NODE PRINT",
    "NORMAL",
    "NSET",
    "OBJECTIVE",
    "ORIENTATION",
    "OUTPUT",
    "PHYSICAL CONSTANTS",
    "PLASTIC",
    "PRE-TENSION SECTION",
    "PREPRINT",
    "RADIATE",
    "RANDOM FIELD",
    "RATE DEPENDENT",
    "REFINE MESH",
    "RESTART",
    "RETAINED NODAL DOFS",
    "RIGID BODY",
    "ROBUST DESIGN",
    "SECTION PRINT",
    "SELECT CYCLIC SYMMETRY MODES",
    "SENSITIVITY",
    "SHELL SECTION",
    "SOLID SECTION",
    "SPECIFIC GAS CONSTANT",
    "SPECIFIC HEAT",
    "SPRING",
    "STATIC",
    "STEADY STATE DYNAMICS",
    "STEP",
    "SUBMODEL",
    "SUBSTRUCTURE GENERATE",
    "SUBSTRUCTURE MATRIX OUTPUT",
    "SURFACE",
    "SURFACE BEHAVIOR",
    "SURFACE INTERACTION",
    "SYSTEM",
    "TEMPERATURE",
    "TIE",
    "TIME POINTS",
    "TRANSFORM",
    "TRANSFORMF",
    "UNCOUPLED TEMPERATURE-DISPLACEMENT",
    "USER ELEMENT",
    "USER MATERIAL",
    "USER SECTION",
    "VALUES AT INFINITY",
    "VIEWFACTOR",
    "VISCO",
    "VISCOELASTIC",
    "VISCOSITY",
};

/// The keywords that LS-DYNA has too, with another meaning or form of the lines that follow.
constexpr const char* sharedKeywords[] = {"INCLUDE", "NODE", "PARAMETER", "PART"};

/// The keywords of LS-DYNA that have no underscore.
constexpr const char* lsDynaKeywords[] = {"KEYWORD", "TITLE", "END"};

/// The beginnings of other keywords of LS-DYNA.
constexpr const char* lsDynaGroups[] = {
    "AIRBAG_",    "ALE_",     "BOUNDARY_", "CASE_",     "CHANGE_STATUS", "COMPONENT_",  "CONSTRAINED_",
    "CONTACT_",   "CONTROL_", "DAMPING_",  "DATABASE_", "DEFINE_",       "DEFORMABLE_", "ELEMENT_",
    "EM_",        "EOS_",     "HOURGLASS", "ICFD_",     "INCLUDE_",      "INITIAL_",    "INTEGRATION_",
    "INTERFACE_", "LOAD_",    "MAT_",      "NODE_",     "PARAMETER_",    "PART_",       "PERTURBATION_",
    "RIGIDWALL_", "SECTION_", "SENSOR_",   "SET_",      "TERMINATION_",  "USER_"};

/// Returns the spellings of the manual by the keywords without blanks.
const std::map<std::string, std::string>& spellings()
{
    static const std::map<std::string, std::string> all = [] {
        std::map<std::string, std::string> made;
        for (const char* const keyword : familyKeywords)
            made[foldedKeyword(keyword)] = keyword;
        for (const char* const keyword : sharedKeywords)
            made[foldedKeyword(keyword)] = keyword;
        return made;
    }();
    return all;
}

template <std::size_t Count>
bool contains(const char* const (&all)[Count], const std::string& keyword)
{
    return std::find(std::begin(all), std::end(all), keyword) != std::end(all);
}

bool isOfLsDyna(const std::string& keyword)
{
    const auto begins = [&keyword](const char* group) { return keyword.rfind(group, 0) == 0; };
    return contains(lsDynaKeywords, keyword) || std::any_of(std::begin(lsDynaGroups), std::end(lsDynaGroups), begins);
}

/// Returns the format of a deck of keywords by its first keyword that only one of them has. Without such a keyword, comments
/// with a dollar sign mean LS-DYNA.
std::optional<Format> formatOfKeywords(std::string_view beginning)
{
    bool hasShared = false;
    bool hasDollar = false;
    while (!beginning.empty()) {
        const std::size_t end = std::min(beginning.find_first_of("\r\n"), beginning.size());
        const std::string_view line = beginning.substr(0, end);
        beginning.remove_prefix(std::min(end + 1, beginning.size()));
        hasDollar = hasDollar || line.substr(0, 1) == "$";
        const std::string keyword = keywordOf(line);
        if (keyword.empty())
            continue;
        if (isOfLsDyna(keyword))
            return Format::LsDyna;
        if (contains(sharedKeywords, keyword))
            hasShared = true;
        else if (isOfKeywordFamily(keyword))
            return Format::Calculix;
    }
    if (!hasShared)
        return std::nullopt;
    return hasDollar ? Format::LsDyna : Format::Calculix;
}

} // namespace

std::string foldedKeyword(std::string_view text)
{
    std::string result;
    for (const char c : text)
        if (c != ' ' && c != '\t')
            result += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    return result;
}

std::string keywordOf(std::string_view line)
{
    line = trimmed(line);
    if (line.size() < 2 || line[0] != '*' || line[1] == '*')
        return {};
    std::string keyword = foldedKeyword(line.substr(1, line.find(',') - 1));
    const bool isWord = !keyword.empty() && keyword[0] >= 'A' && keyword[0] <= 'Z';
    return isWord ? keyword : std::string();
}

std::string spelledKeyword(std::string_view line)
{
    const auto found = spellings().find(keywordOf(line));
    if (found != spellings().end())
        return "*" + found->second;
    return vxjson::shortened(vxMat::toUpperAscii(toUtf8(trimmed(line.substr(0, line.find(','))))));
}

bool isOfKeywordFamily(const std::string& keyword)
{
    return spellings().count(keyword) != 0;
}

bool recognisesCalculix(std::string_view beginning)
{
    return formatOfKeywords(beginning) == Format::Calculix;
}

bool recognisesLsDyna(std::string_view beginning)
{
    return formatOfKeywords(beginning) == Format::LsDyna;
}

const DeckReader& lsDynaReader()
{
    static const DeckReader reader{Format::LsDyna, recognisesLsDyna, nullptr, {}};
    return reader;
}

} // namespace vxDecks
