#include "units/Convert.h"

#include "program/Files.h"
#include "vxMaterial/model/NumberText.h"
#include "vxUnits/Reading.h"

#include <set>

namespace commandline {

namespace {

Answer refuse(const vxUnits::Failure& failure)
{
    return {"", {failure.text()}, Status::Findings};
}

Json::Value toJson(const vxUnits::Reading& reading, const vxUnits::Unit& unit)
{
    Json::Value json;
    json["value"] = toJsonNumber(reading.value);
    json["unit"] = unit.text();
    json["understood"] = reading.understood;
    return json;
}

} // namespace

Answer convertText(const std::string& text, const std::string& unit, vxUnits::TemperatureMeaning meaning, Form form)
{
    const auto target = vxUnits::Unit::parse(unit);
    if (!target)
        return refuse(target.failure());
    const auto reading = vxUnits::readNumber(text, *target, meaning);
    if (!reading)
        return refuse(reading.failure());
    Answer answer;
    answer.text =
        form == Form::Json ? toJsonText(toJson(*reading, *target)) : vxMat::formatNumber(reading->value) + "\n";
    std::set<std::string> notes; // the unit of the number may be that of the result
    for (const vxUnits::Message* const note : {&reading->note, &target->note()}) {
        if (*note->id != '\0' && notes.insert(note->text()).second)
            answer.messages.push_back("note: " + note->text());
    }
    return answer;
}

} // namespace commandline
