#include "Calculix.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace vxtest {

namespace {

constexpr std::array<const char*, 6> faceNames{"X0", "X1", "Y0", "Y1", "Z0", "Z1"};

const char* nameOf(Face face)
{
    return faceNames[static_cast<std::size_t>(face)];
}

std::string boundaryLine(const FaceValue& value)
{
    const std::string direction = std::to_string(value.direction);
    return std::string(nameOf(value.face)) + "," + direction + "," + direction + "," + deckNumber(value.value) + "\n";
}

std::string stepText(const SolverStep& step)
{
    std::string text = std::string("*STEP,INC=1000000") + (step.largeStrain ? ",NLGEOM\n" : "\n");
    // The tolerance is wide, since the increments are fixed.
    text += step.creeps ? "*VISCO,DIRECT,CETOL=1.\n" : "*STATIC,DIRECT\n";
    text += deckNumber(step.increment) + "," + deckNumber(step.duration) + "\n";
    if (!step.displacements.empty())
        text += "*BOUNDARY\n";
    for (const FaceValue& displacement : step.displacements)
        text += boundaryLine(displacement);
    if (!step.forces.empty())
        text += "*CLOAD\n";
    for (const FaceValue& force : step.forces) {
        // A face has four nodes, which all elements of the cube share.
        text += std::string(nameOf(force.face)) + "," + std::to_string(force.direction) + "," +
                deckNumber(force.value / 4.0) + "\n";
    }
    return text;
}

std::string deckText(const SolverModel& model)
{
    std::string text = "*NODE,NSET=ALL\n1,0,0,0\n2,1,0,0\n3,1,1,0\n4,0,1,0\n5,0,0,1\n6,1,0,1\n7,1,1,1\n8,0,1,1\n"
                       "*NSET,NSET=X0\n1,4,5,8\n*NSET,NSET=X1\n2,3,6,7\n*NSET,NSET=Y0\n1,2,5,6\n"
                       "*NSET,NSET=Y1\n3,4,7,8\n*NSET,NSET=Z0\n1,2,3,4\n*NSET,NSET=Z1\n5,6,7,8\n*NSET,NSET=CORNER\n7\n";
    for (std::size_t i = 0; i < model.materials.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        text += "*ELEMENT,TYPE=C3D8,ELSET=E" + number + "\n" + number + ",1,2,3,4,5,6,7,8\n*MATERIAL,NAME=M" + number +
                "\n" + model.materials[i] + "*SOLID SECTION,ELSET=E" + number + ",MATERIAL=M" + number + "\n";
    }
    // Residual forces and corrections of the displacements are well below the compared differences.
    text += "*CONTROLS,PARAMETERS=FIELD\n1.e-7,1.e-6\n*BOUNDARY\n";
    for (const FaceValue& support : model.supports)
        text += boundaryLine(support);
    for (const SolverStep& step : model.steps) {
        text += stepText(step);
        text += std::string("*EL PRINT,ELSET=E1\nS,PEEQ\n*NODE PRINT,NSET=") + nameOf(model.loaded) +
                ",TOTALS=ONLY\nRF\n*NODE PRINT,NSET=CORNER\nU\n*END STEP\n";
    }
    return text;
}

/// Returns the numbers at the start of a line.
std::vector<double> numbersOf(const std::string& line)
{
    std::istringstream stream(line);
    std::vector<double> numbers;
    for (double number = 0.0; stream >> number;)
        numbers.push_back(number);
    return numbers;
}

/// Returns the numbers of the next line that has any.
std::vector<double> nextNumbers(std::istream& stream)
{
    std::string line;
    while (std::getline(stream, line)) {
        auto numbers = numbersOf(line);
        if (!numbers.empty())
            return numbers;
    }
    return {};
}

/// Stores the numbers below a heading in a state. Returns whether they are the last part of an increment.
bool readBlock(const std::string& heading, std::istream& stream, SolverState& state)
{
    const std::vector<double> numbers = nextNumbers(stream);
    const auto copy = [&](std::size_t from, auto& target) {
        for (std::size_t i = 0; i < target.size() && from + i < numbers.size(); ++i)
            target[i] = numbers[from + i];
    };
    if (heading.find("stresses") != std::string::npos)
        copy(2, state.stress);
    if (heading.find("equivalent plastic") != std::string::npos && numbers.size() > 2)
        state.plasticStrain = numbers[2];
    if (heading.find("total force") != std::string::npos)
        copy(0, state.force);
    if (heading.find("displacements") != std::string::npos) {
        copy(1, state.displacement);
        return true;
    }
    return false;
}

std::vector<SolverState> readStates(const std::string& path)
{
    std::ifstream file(path);
    std::vector<SolverState> states;
    SolverState state;
    for (std::string line; std::getline(file, line);) {
        const std::size_t time = line.rfind("time");
        if (time == std::string::npos)
            continue;
        state.time = numbersOf(line.substr(time + 4)).at(0);
        if (readBlock(line, file, state)) {
            states.push_back(state);
            state = SolverState();
        }
    }
    return states;
}

} // namespace

std::string deckNumber(double number)
{
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.12g", number);
    return buffer.data();
}

std::vector<SolverState> runCalculix(const SolverModel& model)
{
    std::string pattern = (std::filesystem::temp_directory_path() / "vxccxXXXXXX").string();
    const char* const made = mkdtemp(pattern.data());
    EXPECT_NE(made, nullptr) << "no folder could be made for the solver";
    if (made == nullptr)
        return {};
    const std::filesystem::path folder(pattern);
    std::ofstream(folder / "job.inp") << deckText(model);
    const std::string command =
        "cd '" + folder.string() + "' && OMP_NUM_THREADS=1 '" VX_CCX "' -i job > job.log 2>&1 < /dev/null";
    const int status = std::system(command.c_str()); // NOLINT(cert-env33-c): starts the solver in a temporary folder
    auto states = readStates((folder / "job.dat").string());
    double duration = 0.0;
    for (const SolverStep& step : model.steps)
        duration += step.duration;
    const double reached = states.empty() ? 0.0 : states.back().time;
    EXPECT_NEAR(reached, duration, 1e-5 * duration) << "the solver ended early, status " << status << "\n"
                                                    << deckText(model);
    std::filesystem::remove_all(folder);
    return states;
}

} // namespace vxtest
