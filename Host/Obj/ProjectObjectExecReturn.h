#pragma once

#include <string>
#include <utility>

namespace Obj {

class ProjectObject;

/// The result of the execution of an object: a text for the user, and the object, which its project owns.
struct ProjectObjectExecReturn
{
    explicit ProjectObjectExecReturn(std::string message, ProjectObject* executed = nullptr)
        : text(std::move(message)), object(executed)
    {}

    std::string text;
    ProjectObject* object;
};

} // namespace Obj
