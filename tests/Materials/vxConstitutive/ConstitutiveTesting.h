#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/data/TestData.h"

#include <functional>
#include <string>
#include <vector>

namespace vxtest {

/// Whether a finding is among others.
bool has(const std::vector<vxConstitutive::Finding>& findings, vxConstitutive::FindingId id);

/// The first argument of the first finding with an id; the test fails if there is none.
std::string firstArgument(const std::vector<vxConstitutive::Finding>& findings, vxConstitutive::FindingId id,
                          std::size_t index = 0);

/// The value of a quantity at one abscissa; the test fails if the curve does not have it.
double valueAt(const vxConstitutive::Model& model, vxConstitutive::Mode mode, double abscissa,
               vxConstitutive::Quantity quantity,
               vxConstitutive::Compressibility compressibility = vxConstitutive::Compressibility::AsGiven);

/// The derivative of a smooth function by a difference formula of eighth order.
double derivative(const std::function<double(double)>& function, double at, double step);

/// A few units, as an application would give them: MPa, kPa, Pa, psi, %, mm/mm, s, h, 1/s, 1/h.
std::optional<double> unitFactor(std::string_view unit, vxConstitutive::Dimension dimension);

/// A test of a mode whose ordinates a function gives.
vxConstitutive::TestData testOf(vxConstitutive::Mode mode, const std::vector<double>& abscissas,
                                const std::function<double(double)>& ordinate);

/// The points of a file under tests/data/rubber, in Pa.
vxConstitutive::TestData rubberTest(const std::string& file, vxConstitutive::Mode mode);

} // namespace vxtest
