#pragma once

#include <boost/multiprecision/cpp_int.hpp>

#include <string>
#include <string_view>

namespace vxtest {

using Rational = boost::multiprecision::cpp_rational;

/// The value of an expression of decimal numbers with +, -, *, / and parentheses: "30e6*0.45359237*9.80665/0.0254/0.0254".
/// The test fails if the text is none.
Rational evaluate(std::string_view expression);

/// Returns whether no double is nearer to the exact number.
bool isNearest(double number, const Rational& exact);

/// The distance of a double from the exact number, relative to that; 0 if both are 0.
double relativeError(double number, const Rational& exact);

} // namespace vxtest
