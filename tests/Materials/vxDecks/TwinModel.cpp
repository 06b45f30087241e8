#include "TwinModel.h"

#include "DecksTesting.h"

#include "vxMaterial/model/NumberText.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <sstream>

namespace vxtest {

namespace {

constexpr double scale = 1000.0; // mm for each m

std::string number(double value)
{
    return vxMat::formatNumber(value);
}

/// The nodes of a cube; the first four are the fixed ones of the elements' loads below.
std::string nodes(int offset, double start, double edge)
{
    static constexpr double corners[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                             {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}};
    std::string text;
    for (int i = 0; i < 8; ++i) {
        const auto& corner = corners[i];
        text += std::to_string(offset + i + 1) + ", " + number(start + corner[0] * edge) + ", " +
                number(corner[1] * edge) + ", " + number(corner[2] * edge) + "\n";
    }
    return text;
}

std::string cubes()
{
    return "*NODE, NSET=ALL\n" + nodes(0, 0.0, 1.0) + nodes(10, 5.0 * scale, scale) +
           "99, 0, 0, 9\n"
           "*ELEMENT, TYPE=C3D8, ELSET=SI\n1, 1, 2, 3, 4, 5, 6, 7, 8\n"
           "*ELEMENT, TYPE=C3D8, ELSET=MM\n2, 11, 12, 13, 14, 15, 16, 17, 18\n";
}

/// Node 99 has the difference of both results, which the solver computes with all digits.
std::string difference(int direction, double factor)
{
    const std::string dof = std::to_string(direction);
    return "*EQUATION\n3\n99, " + dof + ", 1, 12, " + dof + ", -1, 2, " + dof + ", " + number(factor) + "\n";
}

std::string fixedFaces()
{
    std::string text = "*BOUNDARY\n";
    for (const int offset : {0, 10}) {
        const auto node = [offset](int number) { return std::to_string(offset + number); };
        text += node(1) + ", 1, 3\n" + node(4) + ", 1\n" + node(4) + ", 3\n" + node(5) + ", 1, 2\n" + node(8) + ", 1\n";
    }
    return text;
}

std::string forces(double load)
{
    std::string text = "*CLOAD\n";
    for (const int node : {2, 3, 6, 7, 12, 13, 16, 17})
        text += std::to_string(node) + ", 1, " + number(load / 4) + "\n";
    return text;
}

std::string output(const char* variable)
{
    return std::string("*NODE PRINT, NSET=ALL, FREQUENCY=100000\n") + variable + "\n*END STEP\n";
}

std::string staticSteps(Physics physics, double load)
{
    std::string text =
        difference(1, scale) + fixedFaces() + "*STEP, INC=1000\n*STATIC\n0.1, 1\n" + forces(load) + output("U");
    if (physics == Physics::Creep)
        text += "*STEP, INC=10000\n*VISCO, CETOL=1e-4\n0.1, 10\n" + output("U");
    return text;
}

std::string heatSteps(double load)
{
    std::string text = difference(11, 1.0) + "*INITIAL CONDITIONS, TYPE=TEMPERATURE\nALL, 0\n"
                                             "*STEP, INC=1000\n*HEAT TRANSFER, DIRECT\n1, 2\n*DFLUX\n";
    // 1 W/m^3 is 1e-6 mW/mm^3, and 1 W/m^2 is 1e-3 mW/mm^2.
    text += "SI, BF, " + number(load) + "\nMM, BF, " + number(load * 1e-6) + "\n" + output("NT");
    text += "*STEP\n*HEAT TRANSFER, STEADY STATE\n*BOUNDARY\n";
    for (const int node : {1, 4, 5, 8, 11, 14, 15, 18})
        text += std::to_string(node) + ", 11, 11, 0\n";
    return text + "*DFLUX, OP=NEW\nSI, S4, " + number(load) + "\nMM, S4, " + number(load * 1e-3) + "\n" + output("NT");
}

std::string deckText(const vxMat::MaterialBase& material, const char* units, const char* name)
{
    return deckOf(vxDecks::Format::Calculix, material, units, name).text;
}

/// Reads the first value of the nodes 2, 12 and 99 of each step.
std::vector<TwinResult> readResults(const std::string& data)
{
    std::vector<TwinResult> results;
    std::istringstream lines(data);
    double twin = 0.0;
    TwinResult current;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        int node = 0;
        double value = 0.0;
        if (!(fields >> node >> value))
            continue;
        if (node == 2)
            current.value = value;
        else if (node == 12)
            twin = value;
        else if (node == 99) {
            current.difference = std::abs(value / twin);
            results.push_back(current);
        }
    }
    return results;
}

TwinRun solve(const std::string& model)
{
    const QTemporaryDir folder;
    QFile input(folder.filePath("model.inp"));
    if (!input.open(QIODevice::WriteOnly) || input.write(model.data(), static_cast<qint64>(model.size())) < 0)
        return {};
    input.close();
    QProcess solver;
    solver.setWorkingDirectory(folder.path());
    solver.setProcessChannelMode(QProcess::MergedChannels);
    solver.start(VX_CCX, {"-i", "model"});
    const bool finished = solver.waitForFinished(-1);
    TwinRun run;
    run.log = solver.readAll().toStdString();
    run.succeeded = finished && solver.exitStatus() == QProcess::NormalExit && solver.exitCode() == 0 &&
                    run.log.find("*ERROR") == std::string::npos;
    QFile data(folder.filePath("model.dat"));
    if (data.open(QIODevice::ReadOnly))
        run.steps = readResults(data.readAll().toStdString());
    return run;
}

} // namespace

TwinRun runTwins(const vxMat::MaterialBase& material, Physics physics, double load)
{
    const std::string sections = "*SOLID SECTION, ELSET=SI, MATERIAL=SI\n*SOLID SECTION, ELSET=MM, MATERIAL=MM\n";
    const std::string steps = physics == Physics::Transient ? "*PHYSICAL CONSTANTS, ABSOLUTE ZERO=0\n" + heatSteps(load)
                                                            : staticSteps(physics, load);
    return solve(cubes() + deckText(material, "SI", "SI") + deckText(material, "mm-t-s", "MM") + sections + steps);
}

TwinRun readDeck(const vxMat::MaterialBase& material)
{
    const std::string elasticDeck = deckText(elastic()->get(), "SI", "ELASTIC");
    const std::string sections =
        "*SOLID SECTION, ELSET=SI, MATERIAL=ELASTIC\n*SOLID SECTION, ELSET=MM, MATERIAL=ELASTIC\n";
    return solve(cubes() + elasticDeck + deckText(material, "SI", "READ") + sections +
                 staticSteps(Physics::Static, 1e6));
}

} // namespace vxtest
