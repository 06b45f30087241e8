#pragma once

#include <string>
#include <utility>

namespace Obj {

class ProjectObject;

/// What executing an object came to: a text for the user, and the object, which its project keeps.
struct ProjectObjectExecReturn
{
    explicit ProjectObjectExecReturn(std::string message, ProjectObject* executed = nullptr)
        : text(std::move(message)), object(executed)
    {}

    std::string text;
    ProjectObject* object;
};

} // namespace Obj
