#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Reading any text as a number succeeds or throws one of the two documented exceptions. A number that was read can be
/// written and read back unchanged.
void readAsNumbers(std::string_view text)
{
    try {
        for (const double number : vxMat::readNumberList(text)) {
            if (vxMat::readNumber(vxMat::formatNumber(number)) != number)
                std::abort();
        }
    } catch (const std::out_of_range&) {
    }
    try {
        vxMat::readNumber(text);
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    vxMat::readWholeNumber(text);
}

/// A property is made of any text for any quantity, or one of the two exceptions is thrown. What a table shows of it
/// makes the same property again.
void readAsProperty(std::int32_t id, std::string_view text)
try {
    const vxMat::MaterialProperty read(id, "name", std::string(text), "key", "");
    const std::string shown = vxMat::formatValue(read);
    const vxMat::MaterialProperty again(id, "name", shown, "key", "");
    const bool same = again.text == read.text && again.values == read.values &&
                      (again.value == read.value || (std::isnan(again.value) && std::isnan(read.value)));
    if (!same && vxMat::getValueKind(id) != vxMat::ValueKind::ModelSwitch)
        std::abort();
} catch (const std::invalid_argument&) {
} catch (const std::out_of_range&) {
}

} // namespace

/// The input is a table: each line has the place of a quantity in the catalogue, as one byte, and the text of its value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    readAsNumbers(rest);
    std::vector<vxMat::PropertyRow> rows;
    const auto& quantities = vxMat::propertyRecords();
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : line.size());
        if (line.empty())
            continue;
        const std::int32_t id = quantities[static_cast<unsigned char>(line[0]) % quantities.size()].id;
        const std::string_view value = line.substr(1);
        rows.push_back({id, value});
        readAsProperty(id, value);
        vxMat::checkRow(id, value);
        try {
            vxMat::findIgnoredText(id, value);
        } catch (const std::out_of_range&) {
        }
    }
    const auto failure = vxMat::checkRows(rows);
    if (failure && (failure->message == nullptr || failure->row > rows.size()))
        std::abort();
    return 0;
}
