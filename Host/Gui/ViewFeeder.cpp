#include "Gui/ViewFeeder.h"

#include "Obj/ProjectObject.h"

#include <new>

namespace Gui {

Kelta::TypeInfo ViewFeeder::classTypeId;
Obj::PropertyCoreData ViewFeeder::propertyData;

ViewFeeder::ViewFeeder() = default;

ViewFeeder::~ViewFeeder() = default;

Kelta::TypeInfo ViewFeeder::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo ViewFeeder::getTypeId() const
{
    return classTypeId;
}

void ViewFeeder::init()
{
    initSubclass(classTypeId, "Gui::ViewFeeder", "Obj::PropertyDS", nullptr);
    propertyData.set_parent(Obj::PropertyDS::get_property_data_ref());
}

const Obj::PropertyCoreData& ViewFeeder::get_property_data() const
{
    return propertyData;
}

const Obj::PropertyCoreData* ViewFeeder::get_property_data_ref()
{
    return &propertyData;
}

bool ViewFeeder::useNewSelectionModel() const
{
    return false;
}

bool ViewFeeder::onDelete(const std::vector<std::string>&)
{
    return true;
}

void ViewFeeder::updateData(const Obj::Property*) {}

void ViewFeeder::setDisplayMode(const char* mode)
{
    m_displayMode = mode != nullptr ? mode : "";
}

std::vector<std::string> ViewFeeder::getDisplayModes() const
{
    return {};
}

bool ViewFeeder::isShow() const
{
    return true;
}

bool ViewFeeder::setEdit(int)
{
    return false;
}

bool ViewFeeder::on_double_clicked()
{
    return false;
}

void ViewFeeder::build_context_menu(const char*, MenuItem*) {}

void ViewFeeder::build_context_menu(QMenu*, QObject*, const char*) {}

Kelta::TypeInfo ViewFeederProject::classTypeId;
Obj::PropertyCoreData ViewFeederProject::propertyData;

ViewFeederProject::ViewFeederProject() = default;

ViewFeederProject::~ViewFeederProject() = default;

void* ViewFeederProject::create()
{
    return static_cast<Kelta::RootClass*>(new (std::nothrow) ViewFeederProject);
}

Kelta::TypeInfo ViewFeederProject::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo ViewFeederProject::getTypeId() const
{
    return classTypeId;
}

void ViewFeederProject::init()
{
    initSubclass(classTypeId, "Gui::ViewFeederProject", "Gui::ViewFeeder", &ViewFeederProject::create);
    propertyData.set_parent(ViewFeeder::get_property_data_ref());
}

const Obj::PropertyCoreData& ViewFeederProject::get_property_data() const
{
    return propertyData;
}

const Obj::PropertyCoreData* ViewFeederProject::get_property_data_ref()
{
    return &propertyData;
}

Kelta::TypeInfo ViewFeederProjectObject::classTypeId;
Obj::PropertyCoreData ViewFeederProjectObject::propertyData;

ViewFeederProjectObject::ViewFeederProjectObject() = default;

ViewFeederProjectObject::~ViewFeederProjectObject() = default;

void* ViewFeederProjectObject::create()
{
    return static_cast<Kelta::RootClass*>(new (std::nothrow) ViewFeederProjectObject);
}

Kelta::TypeInfo ViewFeederProjectObject::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo ViewFeederProjectObject::getTypeId() const
{
    return classTypeId;
}

void ViewFeederProjectObject::init()
{
    initSubclass(classTypeId, "Gui::ViewFeederProjectObject", "Gui::ViewFeeder", &ViewFeederProjectObject::create);
    propertyData.set_parent(ViewFeeder::get_property_data_ref());
}

void ViewFeederProjectObject::on_changed(const Obj::Property* property)
{
    ViewFeeder::on_changed(property);
    if (m_object != nullptr)
        m_object->notifyChange();
}

const Obj::PropertyCoreData& ViewFeederProjectObject::get_property_data() const
{
    return propertyData;
}

const Obj::PropertyCoreData* ViewFeederProjectObject::get_property_data_ref()
{
    return &propertyData;
}

} // namespace Gui
