#pragma once

#include "table/TableContent.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

#include <vector>

namespace vxInspector {

/// A value of a material as texts in a unit system.
struct ValueText
{
    QString number;     ///< "7850", with at most eight digits; a word; "on" for a switch
    QString unit;       ///< "kg/m^3"; empty for pure numbers, words and switches
    QString note;       ///< the reason if the number is not converted; otherwise empty
    QString whole = {}; ///< the number with all digits; empty if `number` has them

    const QString& exact() const { return whole.isEmpty() ? number : whole; }
};

/// Returns the cell of a value without its unit. The tool tip and the clipboard have all digits.
Cell valueCell(const ValueText& value);

/// Returns the cell of a unit, which is not broken at its blanks unless it is long: W/(m K).
Cell unitCell(const QString& unit);

/// Returns the name of a quantity of the catalogue in the language of the user. For other ids, returns `otherName`.
QString quantityName(std::int32_t id, const std::string& otherName = {});

/// Returns the numbers of a property: the list of a list, otherwise its number; empty for words and switches.
std::vector<double> numbersOf(const vxMat::HeldProperty& held);

/// Returns the texts of numbers of a quantity, which are in the unit of the catalogue, in a unit system. The exponents of
/// `values` decide the unit of the factor of a creep law.
ValueText numbersText(std::int32_t id, const std::vector<double>& numbers, const vxUnits::MaterialValues& values,
                      const vxUnits::UnitSystem& system);

/// Returns the texts of a property of a material. The slot decides which quantity it is.
ValueText valueText(const vxMat::HeldProperty& held, const vxUnits::MaterialValues& values,
                    const vxUnits::UnitSystem& system);

/// Returns the texts of a derived value.
ValueText valueText(const vxUnits::DerivedValue& derived, const vxUnits::UnitSystem& system);

/// Returns the name of a derived value in the language of the user.
QString derivedName(const vxUnits::DerivedValue& derived);

} // namespace vxInspector
