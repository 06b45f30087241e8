#pragma once

#include "Obj/Project.h"
#include "Obj/ProjectObject.h"

namespace vxtest {

/// An object of a class as another module of the host would register it under `Name`.
template <const char* Name, const char* ParentName>
class ForeignObject final : public Obj::ProjectObject
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init()
    {
        initSubclass(type, Name, ParentName,
                     []() -> void* { return static_cast<Kelta::RootClass*>(new ForeignObject); });
    }

private:
    static inline Kelta::TypeInfo type;
};

inline constexpr char objectClass[] = "Obj::ProjectObject";
inline constexpr char groupClass[] = "Obj::ProjectObjectGroup";
inline constexpr char geometryGroup[] = "Fem::FemGeometryGroup";
inline constexpr char meshGroup[] = "Fem::FemMeshGroup";
inline constexpr char study[] = "Fem::FemStudy";
inline constexpr char solution[] = "Fem::FemSolution";
inline constexpr char connections[] = "Fem::FemConnections";
inline constexpr char load[] = "Fem::FemLoad";
inline constexpr char loadGroup[] = "Fem::FemLoadGroup";
inline constexpr char analysis[] = "Fem::FemProject";
inline constexpr const char* protectedNames[] = {geometryGroup, meshGroup, study, solution, connections};

/// A project of a class as another module of the host would register it under `Name`.
template <const char* Name>
class ForeignProject final : public Obj::Project
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init()
    {
        initSubclass(type, Name, "Obj::Project",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new ForeignProject); });
    }

private:
    static inline Kelta::TypeInfo type;
};

inline void initForeignClasses()
{
    ForeignObject<geometryGroup, objectClass>::init();
    ForeignObject<meshGroup, objectClass>::init();
    ForeignObject<study, objectClass>::init();
    ForeignObject<solution, objectClass>::init();
    ForeignObject<connections, objectClass>::init();
    ForeignObject<load, objectClass>::init();
    ForeignObject<loadGroup, groupClass>::init();
    ForeignProject<analysis>::init();
}

} // namespace vxtest
