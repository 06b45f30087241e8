#include "program/CommandLine.h"

#include "curves/Curve.h"
#include "decks/Deck.h"
#include "documents/Diff.h"
#include "documents/Export.h"
#include "documents/Import.h"
#include "documents/NewProject.h"
#include "fits/Fit.h"
#include "materials/Cards.h"
#include "materials/Check.h"
#include "materials/Find.h"
#include "materials/Listings.h"
#include "materials/Query.h"
#include "materials/SetQuantity.h"
#include "program/Answer.h"
#include "program/Arguments.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"
#include "units/Convert.h"
#include "units/UnitListing.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace commandline {

namespace {

void complain(const std::string& message)
{
    std::cerr << "vxmat: " << printable(message) << '\n';
}

/// The subcommands, their arguments, and the functions that they call.
class CommandLine
{
public:
    CommandLine();
    int run(int argc, char** argv);

private:
    CLI::App* addCommand(const std::string& name, const std::string& description, const std::string& example,
                         std::function<Answer()> action);
    void addForm(CLI::App* command);
    void addMaterialsFile(CLI::App* command);
    void addOutput(CLI::App* command);
    void addUnits(CLI::App* command);

    void addLibrary();
    void addCatalogue();
    void addShow();
    void addNew();
    void addImport();
    void addExport();
    void addCards();
    void addCheck();
    void addDiff();
    void addQuery();
    void addSet();
    void addFind();
    void addCurve();
    void addCurvePoints(CLI::App* command);
    void addCurveModel(CLI::App* command);
    void addFit();
    void addTestOptions(CLI::App* command);
    void addFitSettings(CLI::App* command);
    void addConvert();
    void addUnitListing();
    void addDeck();
    void addSolvers();

    Form form() const { return m_json ? Form::Json : Form::Text; }
    Existing existing() const { return m_force ? Existing::Replace : Existing::Keep; }
    ChosenUnits units() const { return ChosenUnits(m_units); }

    CLI::App m_app{
        "Materials for finite-element simulation: the library, projects, exchange documents and solver cards.",
        "vxmat"};
    std::function<Answer()> m_action;

    bool m_json = false;
    bool m_force = false;
    bool m_strict = false;
    bool m_difference = false;
    std::string m_name;
    std::vector<std::string> m_names;
    std::vector<std::string> m_emptyNames;
    std::string m_file;
    std::string m_otherFile;
    std::string m_expression;
    std::string m_output;
    std::optional<std::string> m_materialsFile;
    std::optional<std::string> m_units;
    std::string m_unit;
    Setting m_setting;
    DeckRequest m_deck;
    CurveArguments m_curve;
    FitArguments m_fit;
    std::string m_project = "0";
    std::string m_examples;
};

CommandLine::CommandLine()
{
    m_app.require_subcommand(1);
    m_app.set_version_flag("--version", std::string("vxmat ") + VXMAT_VERSION);
    m_app.set_help_all_flag("--help-all", "Print the help of every subcommand and exit");
    addLibrary();
    addCatalogue();
    addShow();
    addNew();
    addSet();
    addImport();
    addExport();
    addCards();
    addCheck();
    addDiff();
    addQuery();
    addFind();
    addCurve();
    addFit();
    addConvert();
    addUnitListing();
    addDeck();
    addSolvers();
    m_app.footer("Examples:" + m_examples +
                 "\n\nExit status: 0 success, 1 findings or differences, 2 error, 130 ended by Ctrl+C.");
}

CLI::App* CommandLine::addCommand(const std::string& name, const std::string& description, const std::string& example,
                                  std::function<Answer()> action)
{
    CLI::App* const command = m_app.add_subcommand(name, description);
    command->footer("Example:\n  " + example);
    m_examples += "\n  " + example;
    command->callback([this, action = std::move(action)] { m_action = action; });
    return command;
}

void CommandLine::addForm(CLI::App* command)
{
    command->add_flag("--json", m_json, "Print JSON instead of text");
}

void CommandLine::addMaterialsFile(CLI::App* command)
{
    command->add_option("--materials", m_materialsFile, "The material document or project that belongs to the analysis")
        ->type_name("FILE");
}

void CommandLine::addOutput(CLI::App* command)
{
    command->add_option("-o,--output", m_output, "The file to write; - is standard output")
        ->type_name("FILE")
        ->required();
    command->add_flag("--force", m_force,
                      "Replace an existing project, and take over a lock that a program on another computer has left");
}

void CommandLine::addUnits(CLI::App* command)
{
    command
        ->add_option("--units", m_units,
                     "The unit system of all numbers, such as mm-t-s, or base units, such as \"length cm, mass g, time "
                     "us\"")
        ->type_name("SYSTEM");
}

void CommandLine::addLibrary()
{
    CLI::App* const command =
        addCommand("library",
                   "List the built-in materials: name, group, number of quantities, with --units also density and "
                   "Young's modulus",
                   "vxmat library --json", [this] { return listLibrary(form(), units()); });
    addUnits(command);
    addForm(command);
}

void CommandLine::addCatalogue()
{
    CLI::App* const command = addCommand("catalogue", "List the quantities that a material can have", "vxmat catalogue",
                                         [this] { return listCatalogue(form(), units()); });
    addUnits(command);
    addForm(command);
}

void CommandLine::addShow()
{
    CLI::App* const command = addCommand(
        "show", "Show a built-in material, or the materials of a file: name, value, unit, description",
        R"(vxmat show "structural steel" --units mm-t-s)", [this] { return showMaterial(m_name, form(), units()); });
    command
        ->add_option("NAME|FILE", m_name,
                     "A library material, in upper or lower case, or a project or document; - is standard input")
        ->required();
    addUnits(command);
    addForm(command);
}

void CommandLine::addNew()
{
    CLI::App* const command = addCommand("new", "Make a project file of built-in materials and empty ones",
                                         R"(vxmat new "Structural Steel=Frame" Air -o parts.vxmat)",
                                         [this] { return newProject(m_names, m_emptyNames, m_output, existing()); });
    command->add_option("NAME", m_names, "Library materials. The label is the name, or the given LABEL");
    command->add_option("--empty", m_emptyNames, "A material without quantities, with this label; may be repeated")
        ->type_name("LABEL")
        ->allow_extra_args(false);
    addOutput(command);
}

void CommandLine::addSet()
{
    CLI::App* const command = addCommand(
        "set",
        "Set a quantity of a material in a project file, which gets the quantity if it is missing, or the unit "
        "system in which the project is shown",
        R"(vxmat set parts.vxmat Frame "Young's modulus" "210 GPa")",
        [this] { return setQuantity(m_setting, existing()); });
    command->add_option("PROJECT", m_setting.project, "The project file, which is changed in place")->required();
    command->add_option("MATERIAL", m_setting.material, "The label of the material, or its number");
    command->add_option("QUANTITY", m_setting.quantity, "The name, key, symbol or id of a quantity");
    command->add_option(
        "VALUE", m_setting.value,
        "A number with a unit, or in the unit of the catalogue; a list of numbers; a word; \"on\" for a switch");
    command
        ->add_option("--project-units", m_setting.projectUnits,
                     "The unit system in which programs show the project; \"\" removes it")
        ->type_name("SYSTEM");
    command->add_flag("--force", m_force, "Take over a lock that a program on another computer has left");
}

void CommandLine::addImport()
{
    CLI::App* const command = addCommand(
        "import", "Make a project file of a material document, or of the materials of a deck or a whole model",
        "vxmat import bracket.inp --units mm-t-s -o parts.vxmat", [this] {
            return importFile({m_file, m_output, existing(), units()}, form());
        });
    command->add_option("FILE", m_file, "A material document, or a deck; - is standard input")->required();
    addUnits(command);
    addOutput(command);
    addForm(command);
}

void CommandLine::addExport()
{
    CLI::App* const command =
        addCommand("export", "Write built-in materials and the materials of projects to a document for the solver",
                   R"(vxmat export "Structural Steel" "Air=20" -o materials.json)",
                   [this] { return exportMaterials(m_names, m_output, existing(), units()); });
    command
        ->add_option("NAME|PROJECT", m_names,
                     "Library materials, with the numbers 1, 2, ... or the given NUMBER, or project files, whose "
                     "materials keep their numbers")
        ->required();
    addUnits(command);
    addOutput(command);
}

void CommandLine::addCards()
{
    CLI::App* const command = addCommand(
        "cards", "Print the solver cards of built-in materials, of projects and of material documents",
        R"(vxmat cards "Plastic Example 1" materials.json)", [this] { return printCards(m_names, form(), units()); });
    command->add_option("NAME|FILE", m_names, "Library materials, projects or documents; - is standard input")
        ->required();
    addUnits(command);
    addForm(command);
}

void CommandLine::addCheck()
{
    CLI::App* const command =
        addCommand("check",
                   "Report the errors in an exchange document or a project, with their JSON paths, and the values that "
                   "no known material has",
                   "vxmat check analysis.json --materials materials.json", [this] {
                       const Strictness strictness = m_strict ? Strictness::Doubts : Strictness::Errors;
                       return checkFile(m_file, m_materialsFile, strictness, form(), units());
                   });
    command->add_option("FILE", m_file, "An exchange document of either kind, or a project; - is standard input")
        ->required();
    addMaterialsFile(command);
    command->add_flag("--strict", m_strict, "Exit with status 1 for doubts too");
    addUnits(command);
    addForm(command);
}

void CommandLine::addDiff()
{
    CLI::App* const command = addCommand("diff", "Compare the materials of two projects or material documents by label",
                                         "vxmat diff parts.vxmat materials.json",
                                         [this] { return diffFiles(m_file, m_otherFile, form(), units()); });
    command->add_option("A", m_file, "A project or material document; - is standard input")->required();
    command->add_option("B", m_otherFile, "Another project or material document")->required();
    addUnits(command);
    addForm(command);
}

void CommandLine::addQuery()
{
    CLI::App* const command =
        addCommand("query", "Print the properties of an analysis that the solver asks for",
                   "vxmat query analysis.json --materials materials.json --project 3",
                   [this] { return queryFile(m_file, m_materialsFile, parseNumber("--project", m_project), form()); });
    command->add_option("FILE", m_file, "An analysis document; - is standard input")->required();
    command->add_option("--project", m_project, "The number of the project, for the tags")->type_name("NUMBER");
    addMaterialsFile(command);
    addForm(command);
}

void CommandLine::addFind()
{
    CLI::App* const command =
        addCommand("find", "Find materials by their labels and values, and print the values that the expression names",
                   R"(vxmat find library "E > 100 GPa and rho < 5 g/cm3")",
                   [this] { return findMaterials(m_file, m_expression, form(), units()); });
    command
        ->add_option("FILE|library", m_file, "A project or document, - for standard input, or the built-in materials")
        ->required();
    command
        ->add_option(
            "EXPRESSION", m_expression,
            "Comparisons of quantities with values, \"has QUANTITY\" and words of labels, combined by and, or, "
            "not and parentheses, in quotes")
        ->required();
    addUnits(command);
    addForm(command);
}

void CommandLine::addCurve()
{
    CLI::App* const command = addCommand(
        "curve",
        "Print stress, strain or modulus of materials in a test, as comma-separated values, or write them to "
        "a file",
        R"#(vxmat curve "Elastomer 2 (Mooney-Rivlin)" --mode uniaxial --from 0.5 --to 3 --points 26)#",
        [this] { return printCurves(m_curve, form(), units(), existing()); });
    command
        ->add_option("NAME|FILE", m_curve.sources,
                     "Library materials, and projects or documents, of which all materials are drawn; - is standard "
                     "input")
        ->required();
    addCurvePoints(command);
    addCurveModel(command);
    addUnits(command);
    command
        ->add_option("--measured", m_curve.measured,
                     "A file of a measured test, whose points a picture shows; may be repeated")
        ->type_name("[MODE=]FILE")
        ->allow_extra_args(false);
    command
        ->add_option("-o,--output", m_curve.output,
                     "The file to write, a table or a picture; - is standard output, the default")
        ->type_name("FILE.csv|.svg|.png|.pdf");
    command->add_flag("--force", m_force, "Replace an existing file");
    addForm(command);
}

void CommandLine::addCurvePoints(CLI::App* command)
{
    command
        ->add_option("--mode", m_curve.mode,
                     "The test: uniaxial, equibiaxial, planar, volumetric (against stretch), simple-shear (amount of "
                     "shear), plastic (plastic strain), tensile (engineering strain), yield (pressure), creep, "
                     "relaxation, shear-creep (time), creep-rate (stress), dynamic (frequency)")
        ->type_name("MODE")
        ->required();
    command->add_option("--from", m_curve.from, "The first abscissa, with or without a unit: 0.5, \"1 h\"")
        ->type_name("A");
    command->add_option("--to", m_curve.to, "The last abscissa")->type_name("B");
    command->add_option("--points", m_curve.points, "The number of abscissas; 101 if not given")->type_name("N");
    command->add_flag("--log", m_curve.logarithmic, "Space the abscissas by equal factors, in pictures too");
    command->add_option("--at", m_curve.at, "The abscissas, instead of --from and --to")->type_name("X,Y,...");
}

void CommandLine::addCurveModel(CLI::App* command)
{
    command
        ->add_option("--model", m_curve.model,
                     "Only this model of the materials: linear-elasticity, neo-hooke, mooney-rivlin, arruda-boyce, "
                     "mises, drucker-prager, mohr-coulomb, norton, visco-elasticity")
        ->type_name("MODEL");
    command
        ->add_option("--material", m_curve.materials,
                     "Of files, only the material with this label or number; may be repeated")
        ->type_name("MATERIAL")
        ->allow_extra_args(false);
    command->add_flag("--incompressible", m_curve.incompressible, "Ignore D1 and Poisson's ratio");
    command->add_flag("--full", m_curve.full, "Add slope, lateral stretch and volume ratio");
    command->add_flag("--langevin", m_curve.inverseLangevin,
                      "Draw Arruda-Boyce with the inverse Langevin function instead of its five-term series");
    command->add_option("--stress", m_curve.stresses, "The stresses of creep curves")->type_name("X,Y,...");
    command->add_option("--time", m_curve.time, "The time of creep rates; 1 s if not given")->type_name("TIME");
    command->add_option("--cohesion", m_curve.cohesion, "The cohesion of a yield surface")->type_name("STRESS");
}

void CommandLine::addFit()
{
    CLI::App* const command =
        addCommand("fit", "Fit material models to measured tests, and compare them",
                   "vxmat fit uniaxial=pull.csv planar=shear.csv --model all --into parts.vxmat --as Seal",
                   [this] { return fitModels(m_fit, form(), units(), existing()); });
    command
        ->add_option(
            "[MODE=]FILE", m_fit.tests.files,
            "Files of comma-separated values or the like, each with the test that it is of; - is standard input")
        ->required();
    command
        ->add_option(
            "--mode", m_fit.tests.mode,
            "The test of files without MODE=: uniaxial, equibiaxial, planar, simple-shear, volumetric, plastic, "
            "tensile, creep, creep-rate, relaxation")
        ->type_name("MODE");
    addFitSettings(command);
    addTestOptions(command);
    command->add_option("--into", m_fit.project, "The project file that gets the constants of the best model")
        ->type_name("PROJECT");
    command
        ->add_option("--as", m_fit.label, "The label of the material in this project, which is added if it is missing")
        ->type_name("NAME");
    command
        ->add_option(
            "--d1", m_fit.d1,
            "What happens to the D1 of the material if the fit has no volumetric test: keep, remove, or the ratio "
            "of bulk to shear modulus that D1 is set to; if not given, D1 is kept, or set to 500 if it is missing or "
            "contradicts the fit")
        ->type_name("D1");
    command->add_flag("--force", m_force, "Take over a lock that a program on another computer has left");
    addUnits(command);
    addForm(command);
}

void CommandLine::addFitSettings(CLI::App* command)
{
    FitSettings& settings = m_fit.settings;
    command
        ->add_option("--model", settings.models,
                     "all, or one of neo-hooke, mooney-rivlin, mooney-rivlin-c11, arruda-boyce, multilinear, bilinear, "
                     "norton, visco-elasticity; may be repeated")
        ->type_name("MODEL")
        ->allow_extra_args(false)
        ->required();
    command
        ->add_option("--stable", settings.stability,
                     "Where rubber must be stable: data (the stretches of the data, the default), none, or FROM:TO")
        ->type_name("RANGE");
    command
        ->add_option(
            "--error", settings.error,
            "What is made small: differences by the largest value of their test (largest, the default), by each "
            "value (each), or as they are (absolute)")
        ->type_name("MEASURE");
    command
        ->add_option("--bound", settings.bounds,
                     "Bounds of a constant, CONSTANT=LOWER:UPPER, or its value, CONSTANT=VALUE; may be repeated")
        ->type_name("BOUND")
        ->allow_extra_args(false);
    command
        ->add_option(
            "--youngs-modulus", settings.youngsModulus,
            "Of a metal, with which the elastic part is taken off: the slope of the curve (curve, the default), "
            "that of the material of --as (material), or a value")
        ->type_name("MODULUS");
    command->add_option("--poissons-ratio", settings.poissonsRatio, "Of a metal; 0.5 if not given")
        ->type_name("NUMBER");
    command->add_option("--offset", settings.offset, "The plastic strain at which a metal yields; 0.2 % if not given")
        ->type_name("STRAIN");
    command
        ->add_option("--tolerance", settings.tolerance,
                     "Of a multilinear curve, as a part of its largest stress; 0.5 % if not given")
        ->type_name("PART");
}

void CommandLine::addTestOptions(CLI::App* command)
{
    TestArguments& tests = m_fit.tests;
    const auto add = [command](const char* name, std::vector<std::string>& values, const char* type,
                               const std::string& text) {
        command->add_option(name, values, text + "; TEST=" + type + " for one of several tests")
            ->type_name(type)
            ->allow_extra_args(false);
    };
    add("--x-column", tests.xColumns, "COLUMN", "The column of strain, stretch, time or stress, by its name or number");
    add("--y-column", tests.yColumns, "COLUMN", "The column of what was measured");
    add("--x-measure", tests.xMeasures, "MEASURE",
        "What the column has: stretch, engineering-strain, true-strain, volume-ratio, volumetric-strain, ...");
    add("--y-measure", tests.yMeasures, "MEASURE", "Likewise: nominal-stress, true-stress, pressure, ...");
    add("--x-unit", tests.xUnits, "UNIT", "The unit of the column");
    add("--y-unit", tests.yUnits, "UNIT", "The unit of the column of what was measured");
    add("--stress", tests.stresses, "STRESS", "The stress of a creep test");
    add("--weight", tests.weights, "NUMBER", "The weight of a test, 1 if not given");
    add("--separator", tests.separators, "SIGN", "comma, semicolon, tab, space or bar, if it is not understood");
    add("--decimal-mark", tests.decimalMarks, "SIGN", "point or comma, if it is not understood");
}

void CommandLine::addConvert()
{
    CLI::App* const command =
        addCommand("convert", "Convert a number with a unit to another unit", R"(vxmat convert "30e6 psi" Pa)", [this] {
            using vxUnits::TemperatureMeaning;
            const auto meaning = m_difference ? TemperatureMeaning::Difference : TemperatureMeaning::Absolute;
            return convertText(m_name, m_unit, meaning, form());
        });
    command->add_option("NUMBER", m_name, "A number with a unit, in quotes")->required();
    command->add_option("UNIT", m_unit, "The unit of the result")->required();
    command->add_flag("--difference", m_difference, "The number is a difference of temperatures: 20 degC is 20 K");
    addForm(command);
}

void CommandLine::addUnitListing()
{
    CLI::App* const command = addCommand("units", "List the unit systems, and the units of the quantities in them",
                                         "vxmat units", [this] { return listUnits(m_units, form()); });
    command->add_option("SYSTEM", m_units, "Another system: \"length cm, mass g, time us\"");
    addForm(command);
}

void CommandLine::addDeck()
{
    CLI::App* const command =
        addCommand("deck", "Write materials in the input format of a solver, with a report of what it does not carry",
                   R"(vxmat deck "Structural Steel" --solver calculix --units mm-t-s -o steel.inp)", [this] {
                       m_deck.units = m_units;
                       return writeSolverDeck(m_deck, form());
                   });
    command->add_option("NAME|FILE", m_deck.sources, "Library materials, projects or documents; - is standard input")
        ->required();
    command->add_option("--solver", m_deck.solver, "A solver of \"vxmat solvers\"")->type_name("NAME")->required();
    command->add_option("--dialect", m_deck.dialect, "The keywords of calculix: calculix or commercial")
        ->type_name("NAME");
    command->add_option("--fields", m_deck.fields, "The fields of nastran: small, large or free; by default as needed")
        ->type_name("FORM");
    command->add_option("--ids", m_deck.firstNumber, "The number of the first material; the next ones follow")
        ->type_name("FROM");
    command->add_option("-o,--output", m_deck.output, "The file to write; - is standard output")->type_name("FILE");
    addUnits(command);
    addForm(command);
}

void CommandLine::addSolvers()
{
    CLI::App* const command =
        addCommand("solvers", "List the solvers, whether their decks can be read, and their card for each quantity",
                   "vxmat solvers", [this] { return listSolvers(form()); });
    addForm(command);
}

/// Returns the message about an invalid command line.
std::string explain(const CLI::ParseError& error, int argc, char** argv)
{
    const bool named = argc > 1 && argv[1][0] != '-';
    const bool lacksCommand = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
    const std::string reason =
        lacksCommand && named && std::string(error.what()).find("subcommand") != std::string::npos
            ? "there is no subcommand \"" + std::string(argv[1]) + "\""
            : error.what();
    return reason + "; \"vxmat --help\" lists the subcommands";
}

int CommandLine::run(int argc, char** argv)
{
    try {
        m_app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        std::ostringstream text;
        m_app.exit(help, text, std::cerr);
        writeStandardOutput(text.str());
        return static_cast<int>(Status::Clean);
    } catch (const CLI::ParseError& error) {
        complain(explain(error, argc, argv));
        return static_cast<int>(Status::Error);
    }
    const Answer answer = m_action();
    writeStandardOutput(answer.text);
    for (const std::string& message : answer.messages)
        complain(message);
    return static_cast<int>(answer.status);
}

} // namespace

int run(int argc, char** argv) noexcept
{
    try {
        try {
            return CommandLine().run(argc, argv);
        } catch (const std::exception& error) {
            complain(error.what());
        }
    } catch (...) {
        // The message could not be written either; only the status reports the error.
    }
    return static_cast<int>(Status::Error);
}

} // namespace commandline
