#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/TestTable.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace vxConstitutive;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Knows a few units; the factor of one overflows.
std::optional<double> factorOf(std::string_view unit, Dimension dimension)
{
    if (unit == "MPa" && dimension == Dimension::Stress)
        return 1e6;
    if (unit == "%" && dimension == Dimension::Number)
        return 0.01;
    if (unit == "s" && dimension == Dimension::Time)
        return 1.0;
    if (unit == "X" && dimension == Dimension::Stress)
        return 1e300;
    return std::nullopt;
}

void takeAll(const TestTable& table, Mode mode)
{
    TestReadRequest request;
    request.mode = mode;
    request.abscissa.unit = "%";
    request.stress = 1e6;
    const TestReading reading = takeTest(table, request, factorOf);
    require(reading.data.has_value() == reading.questions.empty());
    if (!reading.data)
        return;
    require(reading.data->abscissas.size() == reading.data->ordinates.size());
    require(reading.data->abscissas.size() + reading.leftOut == table.rows());
    for (std::size_t i = 0; i < reading.data->abscissas.size(); ++i)
        require(isInDomain(mode, reading.data->abscissas[i], reading.data->ordinates[i]));
}

} // namespace

/// Requires that any bytes are read or refused, that each cell is finite or NaN, and that the points of a test are inside its
/// domain.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const TestTable table = readTestTable(bytes, factorOf);
    require(table.columns.empty() == hasError(table.findings));
    for (const TableColumn& column : table.columns) {
        require(column.cells.size() == table.rows());
        for (const double cell : column.cells)
            require(!std::isinf(cell));
    }
    for (const Finding& finding : table.findings)
        require(!describe(finding).empty());
    for (const ModeRecord& mode : modeRecords())
        takeAll(table, mode.mode);
    return 0;
}
