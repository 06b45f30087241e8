#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

/// The rules by which a row of the property table is accepted: functions of id and value alone, which the table, the
/// command line and the tests share.
///
/// Failures are answered as message texts. In a text about a row, "%1" stands for the number of the row, which the
/// caller puts in. The texts are sources of translation and stay as they are, misspellings and blanks included.
namespace vxMat {

/// Whether the word that a user typed is meant by an allowed word. The default compares without regard to the case of
/// a to z; a user interface passes one that translates the allowed word first.
using WordMatch = std::function<bool(std::string_view allowedWord, std::string_view typed)>;

/// What is wrong with a number of the quantity `id`; null when nothing is or no rule knows the quantity.
VXMAT_MODEL_EXPORT const char* checkNumber(std::int32_t id, double number);

/// What is wrong with the word of the quantity `id`; null when nothing is or the quantity takes no word.
VXMAT_MODEL_EXPORT const char* checkWord(std::int32_t id, std::string_view word, const WordMatch& matches = {});

/// What is wrong with a row of the quantity `id` whose value reads `valueText`; null when nothing is. A text that
/// readWholeNumber does not take counts as 0.
VXMAT_MODEL_EXPORT const char* checkRow(std::int32_t id, std::string_view valueText, const WordMatch& matches = {});

/// A row of the property table, as far as the rules look at it.
struct PropertyRow
{
    std::int32_t id;
    std::string_view valueText;
};

/// What is wrong with a table: a message, and the row that its "%1" stands for.
struct RuleFailure
{
    const char* message;
    std::size_t row; ///< counted from 1; 0 when the message is about the combination of the rows
};

/// The first thing wrong with a table: the first row that breaks its rule, or, when none does, the combination of the
/// rows. Absent when nothing is wrong, as with a table without rows.
VXMAT_MODEL_EXPORT std::optional<RuleFailure> checkRows(const std::vector<PropertyRow>& rows,
                                                        const WordMatch& matches = {});

/// The text of a failure without "Row %1: " in front, for what has no rows.
VXMAT_MODEL_EXPORT std::string_view withoutRowNumber(std::string_view message);

/// Which of the quantities that depend on each other a material has, for the check after its rows.
class VXMAT_MODEL_EXPORT CombinationCheck
{
public:
    /// Notes that the material has the quantity `id`.
    void note(std::int32_t id);

    /// What is wrong with the combination of the quantities noted; null when nothing is. Elasticity needs Young's
    /// modulus and Poisson's ratio and excludes the hyperelastic models; nothing else is asked for.
    const char* result() const;

private:
    bool m_elasticity = false;
    bool m_youngsModulus = false;
    bool m_poissonsRatio = false;
    bool m_hyperelastic = false;
};

} // namespace vxMat
