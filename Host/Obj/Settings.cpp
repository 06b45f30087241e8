#include "Obj/Settings.h"

#include "Obj/Property.h"

#include <utility>

namespace Obj {

const std::string& Settings::get(const std::string& name) const
{
    static const std::string missing;
    const auto setting = m_texts.find(name);
    return setting != m_texts.end() ? setting->second : missing;
}

bool Settings::set(const std::string& name, std::string text)
{
    if (get(name) == text)
        return false;
    if (text.empty())
        m_texts.erase(name);
    else
        m_texts[name] = std::move(text);
    return true;
}

std::size_t Settings::getMemoryUsage() const
{
    // Each entry costs about three pointers besides its content.
    constexpr std::size_t perEntry = 3 * sizeof(void*) + sizeof(std::pair<const std::string, std::string>);
    std::size_t bytes = 0;
    for (const auto& [name, text] : m_texts)
        bytes += perEntry + heapSizeOf(name) + heapSizeOf(text);
    return bytes;
}

} // namespace Obj
