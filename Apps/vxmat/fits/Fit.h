#pragma once

#include "fits/FitModels.h"
#include "fits/TestFiles.h"
#include "program/Answer.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"

#include <optional>
#include <string>

namespace commandline {

/// The arguments of `vxmat fit`.
struct FitArguments
{
    TestArguments tests;
    FitSettings settings;
    std::optional<std::string> project; ///< gets the constants of the best model
    std::optional<std::string> label;   ///< of the material in this project
    std::optional<std::string> d1;      ///< "keep", "remove", or the ratio of bulk to shear modulus
};

/// `vxmat fit [MODE=]FILE... --model MODEL|all [--mode MODE] [--into PROJECT --as NAME [--d1 D1]] [--units SYSTEM] [--json]`: fits
/// models to measured tests and prints what was understood of the files, and the models, best first. With `project`,
/// writes the best model to a material of this project file.
///
/// The status is Findings if no model with usable constants could be fitted, and Interrupted if the user ended the fit; nothing is then written.
/// \throws Failure for wrong arguments, a file that cannot be read, a project that cannot be changed
Answer fitModels(const FitArguments& arguments, Form form, const ChosenUnits& units, Existing existing);

} // namespace commandline
