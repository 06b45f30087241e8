#include "vxMaterial/model/MatDBManager.h"
#include "vxUnits/Filter.h"
#include "vxUnits/FilterCompletion.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vxUnits::FilterSubject;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

const std::vector<FilterSubject>& librarySubjects()
{
    static const std::vector<FilterSubject> subjects = [] {
        vxMat::MatDBManager library;
        library.initMaterialLibrary();
        std::vector<FilterSubject> made;
        for (const auto& [type, material] : library.materials)
            made.emplace_back(material->name, vxUnits::MaterialValues(*material));
        return made;
    }();
    return subjects;
}

/// The opposite of a filter finds the other materials.
void checkMatches(const vxUnits::Filter& filter, const std::string& text)
{
    const auto opposite = vxUnits::readFilter("not (" + text + ")");
    if (!opposite) // one level deeper
        return;
    for (const FilterSubject& subject : librarySubjects())
        require(filter.isEmpty() || filter.matches(subject) != opposite.filter->matches(subject));
}

void checkCompletions(std::string_view text, std::size_t cursor)
{
    for (const vxUnits::Completion& one : vxUnits::completionsFor(text, cursor)) {
        require(one.begin + one.length == std::min(cursor, text.size()));
        require(!one.text.empty());
    }
}

} // namespace

/// The first byte chooses the unit system and the place of the cursor, the rest is typed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const auto& systems = vxUnits::UnitSystem::builtIn();
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    vxUnits::ReadingContext context;
    context.plainNumbers = &systems[data[0] % systems.size()];
    const auto reading = vxUnits::readFilter(text, context);
    require(reading || !reading.failure.message.text().empty());
    require(reading.position + reading.length <= text.size());
    require(!reading.remark || vxUnits::readFilter(reading.remark->arguments.front(), context));
    if (reading && data[0] % systems.size() == 0)
        checkMatches(*reading.filter, std::string(text));
    checkCompletions(text, text.size());
    checkCompletions(text, data[0]);
    return 0;
}
