#include "ObjTesting.h"

#include "Obj/PropertyType.h"

#include <stdexcept>

namespace vxtest {

namespace {

int partCount = 0;

} // namespace

OBJ_REGISTER_CLASS(vxtest::Part, Obj::ProjectObject)
OBJ_REGISTER_CLASS(vxtest::Joint, vxtest::Part)
OBJ_REGISTER_CLASS(vxtest::Assembly, Obj::Project)

Part::Part()
{
    if (hooks().constructorThrows)
        throw std::runtime_error("a part cannot be made today");
    classLabel.setValue("Part");
    registerProperty(propertyData, id, "ID", "Info", Obj::PropertyType::readOnly, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", Obj::PropertyType::readOnly, "class name");
    registerProperty(propertyData, width, "Width", "Size", Obj::PropertyType::none, "in mm");
    registerProperty(propertyData, secret, "Secret", "Info", Obj::PropertyType::hidden | Obj::PropertyType::readOnly,
                     "");
    ++partCount;
}

Part::~Part()
{
    --partCount;
}

void Part::on_break_object_link(Obj::ProjectObject* linked)
{
    note("break", linked->get_name_in_project());
    if (hooks().breakThrows)
        throw std::runtime_error("a link cannot be broken");
    if (hooks().unlinksWhatLeaves)
        unlinkFrom(*linked);
    if (hooks().removesItselfWithWhatItNeeds)
        get_project()->removeObject(getObjectId());
}

void Part::on_project_restored()
{
    note("restored", get_name_in_project());
    if (hooks().restoredThrows)
        throw std::runtime_error("a part cannot come back");
}

Obj::eVXObjectState Part::check_input()
{
    const auto state = width.getValue() > 0 ? Obj::eVXObjectState::Ready : Obj::eVXObjectState::Initial;
    setObjectState(state);
    if (hooks().action)
        hooks().action(*this, "checking");
    return state;
}

short Part::always_run() const
{
    return hooks().alwaysRuns ? -1 : 0;
}

Obj::ProjectObjectExecReturn* Part::execute()
{
    note("executed", get_name_in_project());
    if (hooks().executionThrows)
        throw std::runtime_error("a part cannot be executed");
    return new Obj::ProjectObjectExecReturn(get_name_in_project(), this);
}

PartHooks& Part::hooks()
{
    static PartHooks all;
    return all;
}

int Part::count()
{
    return partCount;
}

void Part::on_configuring_project()
{
    note("configuring", get_name_in_project());
    if (hooks().configuringThrows)
        throw std::runtime_error("a part cannot be configured");
    if (hooks().action)
        hooks().action(*this, "configuring");
}

void Part::on_changed(const Obj::Property* property)
{
    note("changed", property->toText());
    Obj::ProjectObject::on_changed(property);
    if (hooks().action)
        hooks().action(*this, "changing");
}

void Part::on_change_before(const Obj::Property* property)
{
    note("before", property->toText());
}

void Part::note(const char* what, const std::string& about)
{
    hooks().calls.push_back(what + (" " + about));
}

Joint::Joint()
{
    constexpr short editable = Obj::PropertyType::none;
    registerProperty(propertyData, first, "First", "Parts", editable, "");
    registerProperty(propertyData, second, "Second", "Parts", editable, "");
    registerProperty(propertyData, torque, "Torque", "Size", editable, "in Nm");
    registerProperty(propertyData, locked, "Locked", "Size", editable, "");
    registerProperty(propertyData, kind, "Kind", "Size", editable, "");
    registerProperty(propertyData, color, "Color", "Look", editable, "");
    registerProperty(propertyData, curve, "Curve", "Size", editable, "");
}

Joint::~Joint() = default;

Assembly::Assembly()
{
    if (constructorThrows())
        throw std::runtime_error("an assembly cannot be made today");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", Obj::PropertyType::none, "class name");
    documentTag = assemblyTag;
}

Assembly::~Assembly() = default;

void Assembly::collect_frontend_data()
{
    if (collectingThrows())
        throw std::runtime_error("nothing can be collected");
    Part::hooks().calls.emplace_back("collected");
}

Part& Assembly::addPart(const std::string& name)
{
    Obj::ProjectObject* const object = add_object("vxtest::Part", name);
    if (object == nullptr)
        throw std::logic_error("a part was not added");
    return static_cast<Part&>(*object);
}

Joint& Assembly::addJoint(const std::string& name)
{
    Obj::ProjectObject* const object = add_object("vxtest::Joint", name);
    if (object == nullptr)
        throw std::logic_error("a joint was not added");
    return static_cast<Joint&>(*object);
}

bool& Assembly::collectingThrows()
{
    static bool throws = false;
    return throws;
}

bool& Assembly::constructorThrows()
{
    static bool throws = false;
    return throws;
}

ObjTest::ObjTest()
{
    Obj::initObj();
    Part::init();
    Joint::init();
    Assembly::init();
    Part::hooks() = {};
    Assembly::constructorThrows() = false;
    Assembly::collectingThrows() = false;
}

ObjTest::~ObjTest()
{
    application().closeAllProjects();
    EXPECT_EQ(Part::count(), 0) << "parts outlive their project";
}

Assembly& ObjTest::addAssembly(const std::string& name)
{
    Obj::Project* const project = application().createProject("vxtest::Assembly", name);
    if (project == nullptr)
        throw std::logic_error("a project was not made");
    return static_cast<Assembly&>(*project);
}

std::vector<std::string> namesOf(const std::vector<Obj::ProjectObject*>& objects)
{
    std::vector<std::string> names;
    names.reserve(objects.size());
    for (const Obj::ProjectObject* const object : objects)
        names.emplace_back(object->get_name_in_project());
    return names;
}

} // namespace vxtest
