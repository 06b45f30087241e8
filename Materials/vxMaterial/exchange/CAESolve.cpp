#include "vxMaterial/exchange/CAESolve.h"

#include "SectionMembers.h"

#include <stdexcept>
#include <utility>

namespace vxCAE {

namespace {

/// Reads an element for each step, by index. Missing elements of the array become 0 or false; a value that is not an
/// array is refused.
template <class Element>
void readColumn(std::vector<Element>& list, const Json::Value& array, const detail::StepColumn<Element>& column,
                std::uint32_t steps)
{
    list.assign(steps, Element());
    if (steps == 0)
        return;
    if (!array.isArray() && !array.isNull())
        throw Json::LogicError(std::string("\"") + column.key + "\" is not an array.");
    std::uint32_t step = 0;
    detail::forEachElement(array, [&](const Json::Value& element) {
        if (step < steps)
            list[step++] = detail::readValue<Element>(element, column.conversion);
    });
}

} // namespace

const char* CAESolve::typeName() const
{
    return "CAESolve";
}

void CAESolve::writeJson(Json::Value& document) const
{
    Json::Value solve(Json::objectValue);
    detail::writeMembers(*this, detail::solveMembers, solve);
    detail::forEachMember(detail::stepColumns, [&](const auto& column) {
        const auto& list = this->*column.list;
        if (list.size() < n_load_steps)
            throw std::out_of_range(std::string("\"") + column.key + "\" has " + std::to_string(list.size()) +
                                    " elements for " + std::to_string(n_load_steps) + " load steps");
        Json::Value array;
        for (std::uint32_t step = 0; step < n_load_steps; ++step)
            array.append(Json::Value(list[step]));
        if (!array.empty())
            solve[Json::StaticString(column.key)] = std::move(array);
    });
    document["solve"] = std::move(solve);
}

void CAESolve::readJson(const Json::Value& document)
{
    const Json::Value& solve = document["solve"];
    CAESolve read;
    detail::readMembers(read, detail::solveMembers, solve);
    if (detail::claimsTooManySteps(solve, read.n_load_steps))
        throw Json::RuntimeError("\"n_load_steps\" is " + std::to_string(read.n_load_steps) +
                                 ", which far exceeds the length of the arrays of the steps.");
    detail::forEachMember(detail::stepColumns, [&](const auto& column) {
        readColumn(read.*column.list, solve[column.key], column, read.n_load_steps);
    });
    *this = std::move(read);
}

void CAESolve::getLoadStep(std::uint32_t step, std::int32_t& substeps, double& absoluteTolerance,
                           std::int32_t& iterationLimit) const
{
    substeps = 0;
    absoluteTolerance = 0.0;
    if (step == 0 || step > n_load_steps)
        return;
    const std::size_t index = step - 1;
    const double tolerance = nl_abs_tol.at(index);
    const std::int32_t limit = nl_max_its.at(index);
    substeps = n_substeps.at(index);
    absoluteTolerance = tolerance;
    iterationLimit = limit;
}

} // namespace vxCAE
