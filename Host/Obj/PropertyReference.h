#pragma once

#include "Obj/Property.h"

namespace Obj {

class Project;
class ProjectObject;

/// A reference to an object of the owner's project, or to none. The owner is an object of the project or the project
/// itself.
///
/// The reference stores the id of the object. It is empty while the object is deleted, and is restored by undo;
/// on_changed notifies the owner of both. An object that owns the property needs the object that it refers to, as after
/// ProjectObject::linkTo. As text the internal name of the object, empty for none; its id in JSON, null for none.
class OBJ_EXPORT PropertyReference : public Property
{
public:
    PropertyReference() = default;

    /// Returns null if there is no object.
    ProjectObject* getValue() const;
    /// Refers to `object`; null for none. Returns false, and changes nothing, if `object` is not in the same project.
    bool setValue(ProjectObject* object);

    /// Returns the stored id, also while the object is deleted; 0 for none.
    std::uint32_t getId() const { return m_objectId; }

    std::string toText() const override;
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;

private:
    friend class ProjectObject;
    const Project* findProject() const;

    std::uint32_t m_objectId = 0;
};

} // namespace Obj
