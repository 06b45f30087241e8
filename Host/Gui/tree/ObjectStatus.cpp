#include "Gui/ObjectStatus.h"

#include "Kelta/Exceptions.h"
#include "Obj/ProjectObject.h"

#include <map>
#include <string>
#include <utility>

namespace Gui {

namespace {

using Judges = std::map<std::string, ObjectJudge>;

Judges& judges()
{
    static Judges all;
    return all;
}

/// Returns null if neither the class nor an ancestor has a judge.
const ObjectJudge* findJudge(Kelta::TypeInfo type)
{
    for (; type.namesAType(); type = type.getParent())
        if (const auto found = judges().find(type.get_name()); found != judges().end())
            return &found->second;
    return nullptr;
}

} // namespace

void registerObjectJudge(const char* className, ObjectJudge judge)
{
    judges()[className] = std::move(judge);
}

ObjectStatus statusOf(const Obj::ProjectObject& object)
{
    using Level = ObjectStatus::Level;
    if (const ObjectJudge* const judge = findJudge(object.getTypeId())) {
        try {
            return (*judge)(object);
        } catch (...) {
            // The tree cannot be painted otherwise, and a report for each painting would fill the log.
            return {Level::WithFindings, {Kelta::currentExceptionText()}};
        }
    }
    return {object.getObjectState() == Obj::eVXObjectState::Ready ? Level::Ready : Level::Empty};
}

} // namespace Gui
