#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The rules by which a row of the property table is accepted: functions of id and value, which the table, the command
/// line and the tests share.
///
/// A rule that is broken is returned as the text of a message. In a text about a row, "%1" means the number of the row,
/// which the caller puts in. The texts are sources of translations; their misspellings and blanks must not be changed.
namespace vxMat {

/// Returns whether a word that a user typed means an allowed word. The default ignores the case of a to z; a user interface
/// passes a function that translates the allowed word first.
using WordMatch = std::function<bool(std::string_view allowedWord, std::string_view typed)>;

/// Returns the rule that a number of the quantity `id` breaks; null if it breaks none.
VXMAT_MODEL_EXPORT const char* checkNumber(std::int32_t id, double number);

/// Returns the rule that a word of the quantity `id` breaks; null if it breaks none or the quantity takes no word.
VXMAT_MODEL_EXPORT const char* checkWord(std::int32_t id, std::string_view word, const WordMatch& matches = {});

/// Returns the rule that a row of the quantity `id` with the value text `valueText` breaks; null if it breaks none. A text
/// that readWholeNumber does not accept counts as 0.
VXMAT_MODEL_EXPORT const char* checkRow(std::int32_t id, std::string_view valueText, const WordMatch& matches = {});

/// What the rules need of a row of the property table.
struct PropertyRow
{
    std::int32_t id;
    std::string_view valueText;
};

/// The rule that a table breaks.
struct RuleFailure
{
    const char* message;
    std::size_t row; ///< whose number "%1" means, from 1; 0 if the message is about the combination of the rows
};

/// Returns the first rule that a table breaks: that of the first row that breaks one, else that of the combination of the
/// rows. Absent if the table breaks no rule or has no rows.
VXMAT_MODEL_EXPORT std::optional<RuleFailure> checkRows(const std::vector<PropertyRow>& rows,
                                                        const WordMatch& matches = {});

/// Text in a value that reading the value ignores.
struct IgnoredText
{
    std::string text;   ///< the first text that is ignored, without blanks around it: "GPa" of "210 GPa"
    std::string readAs; ///< the value that is read, as formatValue writes it: "210"
};

/// Returns the text that is ignored when `valueText` is read as a value of the quantity `id`. For a number that is all text
/// behind it, as in "7850 kg" and "2,1e11"; for a list it is the first part that is not one number, as in "450 MPa, 608"
/// and "450-608", where blanks, "," and ";" separate parts. Absent if nothing is ignored, if the text cannot be read at all
/// (then reading it throws), and for words and switches.
VXMAT_MODEL_EXPORT std::optional<IgnoredText> findIgnoredText(std::int32_t id, std::string_view valueText);

/// Returns the message of a broken rule without "Row %1: " at its start, for values that are not in a table.
VXMAT_MODEL_EXPORT std::string_view withoutRowNumber(std::string_view message);

/// Collects which quantities a material has, and checks their combination.
class VXMAT_MODEL_EXPORT CombinationCheck
{
public:
    /// Notes that the material has the quantity `id`.
    void note(std::int32_t id);

    /// Returns the rule that the noted quantities break; null if they break none. The only rules are that elasticity needs
    /// Young's modulus and Poisson's ratio and excludes the hyperelastic models.
    const char* result() const;

private:
    bool m_elasticity = false;
    bool m_youngsModulus = false;
    bool m_poissonsRatio = false;
    bool m_hyperelastic = false;
};

} // namespace vxMat
