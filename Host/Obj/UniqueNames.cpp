#include "Obj/UniqueNames.h"

namespace Obj {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

std::string UniqueNames::next(std::string_view stem)
{
    const std::string own(stem.empty() ? "Object" : stem);
    std::size_t& count = m_counts[own];
    std::string name;
    bool made = true;
    for (; made; ++count) {
        name = count == 0 ? own : own + std::to_string(count);
        made = wasMade(name);
    }
    return name;
}

bool UniqueNames::wasMade(const std::string& name) const
{
    // "Steel12" may come from "Steel12", "Steel1" or "Steel". No count has more digits than this.
    constexpr std::size_t mostDigits = 18;
    std::string stem = name;
    std::size_t number = 0;
    std::size_t place = 1;
    for (std::size_t digits = 0; digits <= mostDigits; ++digits) {
        const bool isNumber = digits == 0 || name[stem.size()] != '0';
        const auto found = isNumber ? m_counts.find(stem) : m_counts.end();
        if (found != m_counts.end() && number < found->second)
            return true;
        if (stem.empty() || !isDigit(stem.back()))
            return false;
        number += place * static_cast<std::size_t>(stem.back() - '0');
        place *= 10;
        stem.pop_back();
    }
    return false;
}

} // namespace Obj
