#include "Obj/Property.h"
#include "Obj/PropertyReference.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace {

std::vector<std::unique_ptr<Obj::Property>> oneOfEachKind()
{
    std::vector<std::unique_ptr<Obj::Property>> properties;
    properties.push_back(std::make_unique<Obj::PropertyString>());
    properties.push_back(std::make_unique<Obj::PropertyInteger>());
    properties.push_back(std::make_unique<Obj::PropertyReal>());
    properties.push_back(std::make_unique<Obj::PropertyBool>());
    properties.push_back(std::make_unique<Obj::PropertyChoice>(std::vector<std::string>{"one", "two"}));
    properties.push_back(std::make_unique<Obj::PropertyColor>());
    properties.push_back(std::make_unique<Obj::PropertyCoupleArray>());
    return properties;
}

} // namespace

/// Setting a property of any kind from any text succeeds or is refused. A value that was set has a text and JSON that
/// set the same value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const auto& property : oneOfEachKind()) {
        const std::string before = property->toText();
        if (!property->fromText(text)) {
            if (property->toText() != before)
                std::abort();
            continue;
        }
        const std::string shown = property->toText();
        if (!property->fromText(shown) || property->toText() != shown)
            std::abort();
        if (!property->fromJson(property->toJson()) || property->toText() != shown)
            std::abort();
    }
    return 0;
}
