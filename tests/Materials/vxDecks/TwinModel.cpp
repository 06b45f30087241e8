#include "TwinModel.h"

#include "DecksTesting.h"

#include "vxUnits/Dimension.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace vxtest {

namespace {

/// Each twin has this many numbers of nodes: 1 to 8 of the first cube, 11 to 18 of the second, and one for their difference.
constexpr std::size_t nodesOfTwin = 20;
constexpr int secondCube = 10;
constexpr int differenceNode = 19;
/// The node that is free in all directions.
constexpr int freeNode = 7;

/// Returns a number in SI units as the solver reads it: in at most 20 characters.
std::string solverNumber(double value)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(13);
    text << value;
    return text.str();
}

std::string nodeOf(std::size_t twin, int node)
{
    return std::to_string(twin * nodesOfTwin + static_cast<std::size_t>(node));
}

/// One of both cubes of all twins.
struct Side
{
    const char* prefix; ///< of the names of its materials
    int offset;         ///< of its nodes
    vxUnits::UnitSystem units;

    /// Returns the number in these units of a quantity that is 1 in SI units.
    double of(const vxUnits::Dimension& dimension) const { return 1.0 / units.unitOf(dimension).factor(); }
    std::string name(std::size_t twin) const { return prefix + std::to_string(twin + 1); }
};

class Model
{
public:
    explicit Model(const TwinRequest& request);

    std::string text();
    std::size_t refused() const { return m_refused; }
    /// Returns the length of the edges of a twin in m: all forces are about 1 N, so that the solver, which compares residual
    /// forces with the mean force of the model, is equally exact for all of them.
    double edge(std::size_t twin) const;
    double edge(std::size_t twin, const Side& side) const { return edge(twin) * side.of(vxUnits::dimensions::length); }

private:
    bool isHeat() const { return m_request.physics == Physics::Heat; }
    std::string cube(std::size_t twin, const Side& side) const;
    std::string materials(const Side& side);
    std::string differences() const;
    std::string supports() const;
    std::string forces(std::size_t step) const;
    std::string fluxes(std::size_t step) const;
    std::string coldFaces() const;
    std::string increments(const std::string& card, double duration) const;
    std::string mechanicalSteps() const;
    std::string creepSteps() const;
    std::string heatSteps() const;

    const TwinRequest& m_request;
    std::vector<Side> m_sides;
    std::size_t m_refused = 0;
};

Model::Model(const TwinRequest& request)
    : m_request(request),
      m_sides{{"A", 0, *vxUnits::UnitSystem::parse(request.systems[0])},
              {"B", secondCube, *vxUnits::UnitSystem::parse(request.systems[1])}}
{}

double Model::edge(std::size_t twin) const
{
    if (isHeat())
        return 1.0;
    const auto& loads = m_request.twins[twin].loads;
    const auto larger = [](double one, double other) { return std::abs(one) < std::abs(other); };
    return 1.0 / std::sqrt(std::abs(*std::max_element(loads.begin(), loads.end(), larger)));
}

std::string Model::cube(std::size_t twin, const Side& side) const
{
    static constexpr double corners[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                             {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}};
    const double length = edge(twin, side);
    std::string text = "*NODE, NSET=ALL\n";
    std::string element = std::to_string(2 * twin + (side.offset == 0 ? 1 : 2));
    for (int i = 0; i < 8; ++i) {
        const std::string node = nodeOf(twin, side.offset + i + 1);
        text += node;
        for (const double coordinate : corners[i])
            text += ", " + solverNumber(coordinate * length);
        text += "\n";
        element += ", " + node;
    }
    const std::string name = side.name(twin);
    return text + "*ELEMENT, TYPE=C3D8, ELSET=E" + name + "\n" + element + "\n*SOLID SECTION, ELSET=E" + name +
           ", MATERIAL=" + name + "\n";
}

std::string Model::materials(const Side& side)
{
    std::vector<vxDecks::DeckMaterial> all;
    for (std::size_t i = 0; i < m_request.twins.size(); ++i)
        all.push_back({side.name(i), {}, m_request.twins[i].material});
    vxDecks::DeckOptions options;
    options.units = side.units;
    vxDecks::Deck deck = vxDecks::writeDeck(vxDecks::Format::Calculix, all, options);
    m_refused += vxDecks::countRefused(deck.report);
    return deck.text;
}

/// The node of the difference of a twin has the displacements or the temperature of the second cube less those of the first,
/// which the solver computes with all digits.
std::string Model::differences() const
{
    std::string text;
    for (std::size_t i = 0; i < m_request.twins.size(); ++i) {
        const double factor = isHeat() ? 1.0 : edge(i, m_sides[1]) / edge(i, m_sides[0]);
        text += "*NODE, NSET=ALL\n" + nodeOf(i, differenceNode) + ", 0, 0, 9\n";
        for (const char* const direction : {"1", "2", "11"}) {
            if (isHeat() != (std::string(direction) == "11"))
                continue;
            const std::string middle = std::string(", ") + direction + ", ";
            text += "*EQUATION\n3\n" + nodeOf(i, differenceNode) + middle + "1, " +
                    nodeOf(i, freeNode + m_sides[1].offset) + middle + "-1, " +
                    nodeOf(i, freeNode + m_sides[0].offset) + middle + solverNumber(factor) + "\n";
        }
    }
    text += "*NSET, NSET=OUT\n";
    for (std::size_t i = 0; i < m_request.twins.size(); ++i)
        text += nodeOf(i, freeNode) + ", " + nodeOf(i, freeNode + secondCube) + ", " + nodeOf(i, differenceNode) + "\n";
    return text;
}

std::string Model::supports() const
{
    static constexpr int faces[3][4] = {{1, 4, 5, 8}, {1, 2, 5, 6}, {1, 2, 3, 4}};
    std::string text = "*BOUNDARY\n";
    for (std::size_t i = 0; i < m_request.twins.size(); ++i) {
        for (const Side& side : m_sides) {
            for (int direction = 0; direction < 3; ++direction) {
                for (const int node : faces[direction])
                    text += nodeOf(i, side.offset + node) + ", " + std::to_string(direction + 1) + "\n";
            }
        }
    }
    return text;
}

std::string Model::forces(std::size_t step) const
{
    std::string text = "*CLOAD\n";
    for (std::size_t i = 0; i < m_request.twins.size(); ++i) {
        const double force = m_request.twins[i].loads.at(step) * edge(i) * edge(i);
        for (const Side& side : m_sides) {
            for (const int node : {2, 3, 6, 7})
                text += nodeOf(i, side.offset + node) + ", 1, " +
                        solverNumber(force / 4 * side.of(vxUnits::dimensions::force)) + "\n";
        }
    }
    return text;
}

std::string output(const char* variable)
{
    return std::string("*NODE PRINT, NSET=OUT, FREQUENCY=1000000\n") + variable + "\n*END STEP\n";
}

/// Returns the card of an analysis with the length of its increments.
std::string Model::increments(const std::string& card, double duration) const
{
    const bool isFixed = m_request.increments > 0;
    const double length = isFixed ? duration / m_request.increments : duration / 4;
    return card + (isFixed ? ", DIRECT\n" : "\n") + solverNumber(length) + ", " + solverNumber(duration) + "\n";
}

std::string Model::mechanicalSteps() const
{
    std::string text;
    const char* const geometry = m_request.physics == Physics::LargeStrain ? ", NLGEOM" : "";
    for (std::size_t step = 0; step < m_request.twins.at(0).loads.size(); ++step)
        text +=
            std::string("*STEP, INC=1000") + geometry + "\n" + increments("*STATIC", 1.0) + forces(step) + output("U");
    return text;
}

std::string Model::creepSteps() const
{
    std::string text;
    double begin = 1.0;
    for (const double end : m_request.times) {
        text += "*STEP, INC=100000\n" + increments("*VISCO, CETOL=1e-4", end - begin);
        text += output("U");
        begin = end;
    }
    return text;
}

std::string Model::fluxes(std::size_t step) const
{
    std::string text = step == 0 ? "*DFLUX\n" : "*DFLUX, OP=NEW\n";
    const auto perArea = vxUnits::dimensions::power / vxUnits::dimensions::area;
    const auto dimension = step == 0 ? perArea / vxUnits::dimensions::length : perArea;
    for (std::size_t i = 0; i < m_request.twins.size(); ++i) {
        for (const Side& side : m_sides)
            text += "E" + side.name(i) + (step == 0 ? ", BF, " : ", S4, ") +
                    solverNumber(m_request.twins[i].loads.at(step) * side.of(dimension)) + "\n";
    }
    return text;
}

std::string Model::coldFaces() const
{
    std::string text = "*BOUNDARY\n";
    for (std::size_t i = 0; i < m_request.twins.size(); ++i) {
        for (const Side& side : m_sides) {
            for (const int node : {1, 4, 5, 8})
                text += nodeOf(i, side.offset + node) + ", 11, 11, 0\n";
        }
    }
    return text;
}

std::string Model::heatSteps() const
{
    return "*INITIAL CONDITIONS, TYPE=TEMPERATURE\nALL, 0\n*STEP, INC=1000\n*HEAT TRANSFER, DIRECT\n1, 2\n" +
           fluxes(0) + output("NT") + "*STEP\n*HEAT TRANSFER, STEADY STATE\n" + coldFaces() + fluxes(1) + output("NT");
}

std::string Model::text()
{
    std::string text = isHeat() ? "*PHYSICAL CONSTANTS, ABSOLUTE ZERO=0\n" : "";
    for (const Side& side : m_sides) {
        text += materials(side);
        for (std::size_t i = 0; i < m_request.twins.size(); ++i)
            text += cube(i, side);
    }
    text += differences();
    if (isHeat())
        return text + "*CONTROLS, PARAMETERS=FIELD\n0.005, 0.01, , 1e3\n" + heatSteps();
    // The default tolerances are wide compared with the differences that the tests see. Residual forces may grow in the
    // first iterations of a long increment.
    return text +
           "*CONTROLS, PARAMETERS=FIELD\n1e-9, 1e-6\n*CONTROLS, PARAMETERS=TIME INCREMENTATION\n30, 40, 9, 60, 50\n" +
           supports() + mechanicalSteps() + creepSteps();
}

std::string readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// Runs the solver and returns its results.
std::string solve(const std::string& model, TwinRun& run)
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
    run.log = solver.readAll().toStdString();
    run.succeeded = finished && solver.exitStatus() == QProcess::NormalExit && solver.exitCode() == 0 &&
                    run.log.find("*ERROR") == std::string::npos;
    return readFile(folder.filePath("model.dat"));
}

/// Reads the values of the nodes of each twin after each step.
std::vector<std::vector<TwinState>> readStates(const std::string& data, const TwinRequest& request, const Model& model)
{
    std::vector<std::vector<TwinState>> states(request.twins.size());
    const auto first = *vxUnits::UnitSystem::parse(request.systems[0]);
    std::istringstream lines(data);
    double second = 0.0; // of the second cube
    TwinState current;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::size_t node = 0;
        double value = 0.0;
        if (!(fields >> node >> value))
            continue;
        double lateral = 0.0;
        fields >> lateral; // temperatures have none
        const std::size_t twin = node / nodesOfTwin;
        const double length = request.physics == Physics::Heat
                                  ? 1.0
                                  : model.edge(twin) / first.unitOf(vxUnits::dimensions::length).factor();
        if (node % nodesOfTwin == freeNode) {
            current.value = value / length;
            current.lateral = lateral / length;
        } else if (node % nodesOfTwin == freeNode + secondCube) {
            second = value;
        } else {
            current.difference = std::max(std::abs(value), std::abs(lateral)) / std::abs(second);
            states.at(twin).push_back(current);
        }
    }
    return states;
}

} // namespace

TwinRun runTwins(const TwinRequest& request)
{
    TwinRun run;
    Model model(request);
    run.states = readStates(solve(model.text(), run), request, model);
    run.refused = model.refused();
    return run;
}

TwinRun readDeck(const std::vector<const vxMat::MaterialBase*>& materials)
{
    std::vector<vxDecks::DeckMaterial> all;
    for (const vxMat::MaterialBase* const material : materials)
        all.push_back({material->name, {}, material});
    const auto metal = elastic();
    TwinRequest request;
    request.twins = {{&metal->get(), {1e6}}};
    TwinRun run;
    solve(vxDecks::writeDeck(vxDecks::Format::Calculix, all, {}).text + Model(request).text(), run);
    return run;
}

double largestDifference(const TwinRun& run)
{
    double largest = 0.0;
    for (const auto& states : run.states) {
        for (const TwinState& state : states)
            largest = std::max(largest, state.difference);
    }
    return largest;
}

} // namespace vxtest
