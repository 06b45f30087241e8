#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/data/TestData.h"

#include <functional>
#include <string>
#include <vector>

namespace vxtest {

/// Returns whether the findings include one with an id.
bool has(const std::vector<vxConstitutive::Finding>& findings, vxConstitutive::FindingId id);

/// Returns an argument of the first finding with an id. The test fails if there is none.
std::string firstArgument(const std::vector<vxConstitutive::Finding>& findings, vxConstitutive::FindingId id,
                          std::size_t index = 0);

/// Returns the value of a quantity at one abscissa. The test fails if the curve does not have it.
double valueAt(const vxConstitutive::Model& model, vxConstitutive::Mode mode, double abscissa,
               vxConstitutive::Quantity quantity,
               vxConstitutive::Compressibility compressibility = vxConstitutive::Compressibility::AsGiven);

/// Returns the derivative of a smooth function by a difference formula of eighth order.
double derivative(const std::function<double(double)>& function, double at, double step);

/// Returns a test of a mode with the ordinates that a function returns.
vxConstitutive::TestData makeTest(vxConstitutive::Mode mode, const std::vector<double>& abscissas,
                                  const std::function<double(double)>& ordinate);

/// Returns the points of a file in tests/data/rubber, in Pa.
vxConstitutive::TestData rubberTest(const std::string& file, vxConstitutive::Mode mode);

} // namespace vxtest
