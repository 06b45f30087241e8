#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The rules for accepting a row of the property table: functions of id and value, which the table, the command line
/// and the tests share.
///
/// Failures are returned as message texts. In a text about a row, the caller replaces "%1" by the number of the row.
/// The texts are sources of translation and must not change, misspellings and blanks included.
namespace vxMat {

class MaterialBase;

/// A function that returns whether a typed word means an allowed word. The default ignores the case of a to z; a user
/// interface passes a function that translates the allowed word first.
using WordMatch = std::function<bool(std::string_view allowedWord, std::string_view typed)>;

/// Returns the fault of a number of the quantity `id`; null if there is no fault or no rule.
VXMAT_MODEL_EXPORT const char* checkNumber(std::int32_t id, double number);

/// Returns the fault of a word of the quantity `id`; null if there is no fault, or if the quantity takes no word.
VXMAT_MODEL_EXPORT const char* checkWord(std::int32_t id, std::string_view word, const WordMatch& matches = {});

/// Returns the fault of a row of the quantity `id` with the value `valueText`; null if there is no fault. A text that
/// readWholeNumber does not take counts as 0.
VXMAT_MODEL_EXPORT const char* checkRow(std::int32_t id, std::string_view valueText, const WordMatch& matches = {});

/// The part of a row of the property table that the rules need.
struct PropertyRow
{
    std::int32_t id;
    std::string_view valueText;
};

/// A fault of a table: a message, and the row for its "%1".
struct RuleFailure
{
    const char* message;
    std::size_t row; ///< from 1; 0 if the message is about the combination of the rows
};

/// Returns the first fault of a table: the first row that breaks its rule, otherwise the combination of the rows.
/// Absent if there is no fault; a table without rows has no fault.
VXMAT_MODEL_EXPORT std::optional<RuleFailure> checkRows(const std::vector<PropertyRow>& rows,
                                                        const WordMatch& matches = {});

/// The text in a value that the reader ignores.
struct IgnoredText
{
    std::string text;   ///< the first ignored text, without blanks around it: "GPa" of "210 GPa"
    std::string readAs; ///< the value that is read, as formatValue writes it: "210"
};

/// Returns the text that is ignored when `valueText` is read as a value of the quantity `id`. For a number this is all
/// text after it, as in "7850 kg" and "2,1e11"; for a list it is the first part that is not one number, as in "450
/// MPa, 608" and "450-608". Blanks, "," and ";" separate the parts. Absent if nothing is ignored, if the text cannot be
/// read at all (reading it throws), and for words and switches.
VXMAT_MODEL_EXPORT std::optional<IgnoredText> findIgnoredText(std::int32_t id, std::string_view valueText);

/// Returns the text of a failure without "Row %1: " in front, for callers that have no rows.
VXMAT_MODEL_EXPORT std::string_view withoutRowNumber(std::string_view message);

/// The quantities of a material that depend on each other, for the check after its rows.
class VXMAT_MODEL_EXPORT CombinationCheck
{
public:
    /// Notes that the material has the quantity `id`.
    void note(std::int32_t id);

    /// Returns the fault of the combination of the noted quantities; null if there is no fault. Elasticity needs
    /// Young's modulus and Poisson's ratio and excludes the hyperelastic models; there are no other rules.
    const char* result() const;

private:
    bool m_elasticity = false;
    bool m_youngsModulus = false;
    bool m_poissonsRatio = false;
    bool m_hyperelastic = false;
};

/// The lengths of the two lists of a hardening curve. Each yield stress belongs to one plastic strain.
struct CurveLengths
{
    std::size_t yieldStresses;
    std::size_t plasticStrains;
};

/// Returns the lengths if the material holds both lists and they differ; absent otherwise.
VXMAT_MODEL_EXPORT std::optional<CurveLengths> findUnequalCurve(const MaterialBase& material);

} // namespace vxMat
