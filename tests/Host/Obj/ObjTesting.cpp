#include "ObjTesting.h"

#include "Obj/PropertyType.h"

#include <stdexcept>

namespace vxtest {

namespace {

int partCount = 0;

} // namespace

Part::Part()
{
    if (hooks().constructorThrows)
        throw std::runtime_error("a part cannot be made today");
    classLabel.setValue("Part");
    register_property(propertyData, id, "ID", "Info", Obj::PropertyType::ReadOnly, "Identity of the tree object");
    register_property(propertyData, classLabel, "ClassLabel", "Info", Obj::PropertyType::ReadOnly, "class name");
    register_property(propertyData, width, "Width", "Size", Obj::PropertyType::None, "in mm");
    register_property(propertyData, secret, "Secret", "Info", Obj::PropertyType::Hidden | Obj::PropertyType::ReadOnly,
                      "");
    ++partCount;
}

Part::~Part()
{
    --partCount;
}

void Part::init()
{
    initSubclass(classTypeId, "Test::Part", "Obj::ProjectObject", &Part::create);
    propertyData.set_parent(Obj::ProjectObject::get_property_data_ref());
}

void Part::on_break_object_link(Obj::ProjectObject* linked)
{
    note("break", linked->get_name_in_project());
    if (hooks().breakThrows)
        throw std::runtime_error("a link cannot be broken");
    if (hooks().removesItselfWithWhatItNeeds)
        get_project()->remove_object(getObjectId());
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
    return state;
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
}

void Part::on_changed(const Obj::Property* property)
{
    note("changed", property->to_text());
    Obj::ProjectObject::on_changed(property);
}

void Part::on_change_before(const Obj::Property* property)
{
    note("before", property->to_text());
}

void Part::note(const char* what, const std::string& about)
{
    hooks().calls.push_back(what + (" " + about));
}

Assembly::Assembly()
{
    if (constructorThrows())
        throw std::runtime_error("an assembly cannot be made today");
    register_property(propertyData, classLabel, "ClassLabel", "Info", Obj::PropertyType::None, "class name");
    documentTag = Kelta::eDocumentTag::Analysis;
}

void Assembly::init()
{
    initSubclass(classTypeId, "Test::Assembly", "Obj::Project", &Assembly::create);
    propertyData.set_parent(Obj::Project::get_property_data_ref());
}

Part& Assembly::addPart(const std::string& name)
{
    Obj::ProjectObject* const object = add_object("Test::Part", name);
    if (object == nullptr)
        throw std::logic_error("a part was not added");
    return static_cast<Part&>(*object);
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
    Assembly::init();
    Part::hooks() = {};
    Assembly::constructorThrows() = false;
}

ObjTest::~ObjTest()
{
    application().close_all_projects();
    EXPECT_EQ(Part::count(), 0) << "parts outlive their project";
}

Assembly& ObjTest::addAssembly(const std::string& name)
{
    Obj::Project* const project = application().create_project("Test::Assembly", name);
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
