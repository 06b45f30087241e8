#pragma once

#include "Obj/Application.h"
#include "Obj/ClassRegistration.h"
#include "Obj/ProjectObject.h"
#include "Obj/PropertyReference.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace vxtest {

/// The settings for the operations of a Part that the host calls, and records of the calls.
struct PartHooks
{
    std::vector<std::string> calls;
    bool constructorThrows = false;
    bool configuringThrows = false;
    bool restoredThrows = false;
    bool breakThrows = false;
    bool removesItselfWithWhatItNeeds = false;
    bool unlinksWhatLeaves = false;
    bool executionThrows = false;
    bool alwaysRuns = false;
    /// Called at the end of on_configuring_project, on_changed and check_input, with the name of the operation.
    std::function<void(Obj::ProjectObject&, const std::string&)> action;
};

/// An object of a project, which records the calls of its operations. Two further properties: "Width" is editable,
/// "Secret" is hidden and read-only.
class Part : public Obj::ProjectObject
{
    OBJ_CLASS;

public:
    Part();
    ~Part() override;

    short always_run() const override;
    Obj::ProjectObjectExecReturn* execute() override;
    void on_break_object_link(Obj::ProjectObject* linked) override;
    void on_project_restored() override;
    Obj::eVXObjectState check_input() override;

    /// Returns the settings and records of the class, which are cleared for each test.
    static PartHooks& hooks();
    static int count();

    Obj::PropertyInteger width{7};
    Obj::PropertyString secret{"none"};

protected:
    void on_configuring_project() override;
    void on_changed(const Obj::Property* property) override;
    void on_change_before(const Obj::Property* property) override;

private:
    void note(const char* what, const std::string& about);
};

/// A class derived from Part that connects two other parts. It has a property of each type.
class Joint : public Part
{
    OBJ_CLASS;

public:
    Joint();
    ~Joint() override;

    Obj::PropertyReference first;
    Obj::PropertyReference second;
    Obj::PropertyReal torque{12.5};
    Obj::PropertyBool locked{true};
    Obj::PropertyChoice kind{{"rigid", "hinged", "sliding"}};
    Obj::PropertyColor color;
    Obj::PropertyCoupleArray curve;
};

/// The document tag of Assemblies.
constexpr Kelta::eDocumentTag assemblyTag{1};

/// A project of Parts.
class Assembly : public Obj::Project
{
    OBJ_CLASS;

public:
    Assembly();
    ~Assembly() override;

    /// Notes "collected", or throws.
    void collect_frontend_data() override;

    /// Adds a Part or a Joint, which must succeed.
    Part& addPart(const std::string& name = "Part");
    Joint& addJoint(const std::string& name = "Joint");

    static bool& constructorThrows();
    static bool& collectingThrows();
};

/// Classes are registered, and no project is open, before and after each test.
class ObjTest : public testing::Test
{
protected:
    ObjTest();
    ~ObjTest() override;

    static Obj::Application& application() { return Obj::Application::instance(); }
    static Assembly& addAssembly(const std::string& name = "Assembly");
};

/// Returns the names of objects, in order.
std::vector<std::string> namesOf(const std::vector<Obj::ProjectObject*>& objects);

/// Returns the place of a virtual operation in the table of virtual operations. The C++ ABI of this machine writes
/// pointers to virtual members as one more than the offset into the table.
template <typename Member>
std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof member >= sizeof offset);
    std::memcpy(&offset, &member, sizeof offset);
    EXPECT_EQ(offset % static_cast<std::ptrdiff_t>(sizeof(void*)), 1) << "not a virtual operation";
    return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

#if defined(__x86_64__) && !defined(_WIN32)
constexpr bool slotsCanBeRead = true;
#else
constexpr bool slotsCanBeRead = false;
#endif

} // namespace vxtest
