#include "TypedValue.h"

#include "vxMaterial/model/NumberText.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Reading.h"

#include <utility>

namespace desktop {

namespace {

vxUnits::Result<TypedValue> readOne(std::int32_t id, std::string_view text, const vxUnits::ReadingContext& context)
{
    auto reading = vxUnits::readQuantity(id, text, context);
    if (!reading)
        return reading.failure();
    return TypedValue{vxMat::formatNumber(reading->value), {reading->value}, reading->understood, reading->note};
}

vxUnits::Result<TypedValue> readSeveral(std::int32_t id, std::string_view text, const vxUnits::ReadingContext& context)
{
    auto reading = vxUnits::readQuantityList(id, text, context);
    if (!reading)
        return reading.failure();
    std::string stored = vxMat::formatNumberList(reading->values);
    vxUnits::ListReading list = *std::move(reading);
    return TypedValue{std::move(stored), std::move(list.values), std::move(list.understood), list.note};
}

} // namespace

bool takesList(std::int32_t id)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
    return quantity != nullptr && quantity->form == vxUnits::QuantityForm::NumberList;
}

bool takesNumbers(std::int32_t id)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
    return quantity != nullptr && quantity->hasNumber();
}

vxUnits::Result<TypedValue> readTyped(std::int32_t id, std::string_view text,
                                      const std::optional<vxUnits::CreepExponents>& creep)
{
    const vxUnits::ReadingContext context{nullptr, creep};
    return takesList(id) ? readSeveral(id, text, context) : readOne(id, text, context);
}

std::string siUnitOf(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep)
{
    const auto unit = vxUnits::unitOfQuantity(id, vxUnits::UnitSystem::si(), creep);
    if (unit)
        return unit->text();
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
    return quantity != nullptr ? quantity->siUnit : "";
}

} // namespace desktop
