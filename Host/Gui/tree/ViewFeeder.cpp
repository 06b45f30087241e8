#include "Gui/ViewFeeder.h"

#include "Obj/Project.h"

namespace Gui {

OBJ_REGISTER_ABSTRACT_CLASS(Gui::ViewFeeder, Obj::PropertyDS)

ViewFeeder::ViewFeeder() = default;

ViewFeeder::~ViewFeeder() = default;

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

void ViewFeeder::on_changed(const Obj::Property* property)
{
    Obj::PropertyDS::on_changed(property);
    m_hasChanged = true;
}

OBJ_REGISTER_CLASS(Gui::ViewFeederProject, Gui::ViewFeeder)

ViewFeederProject::ViewFeederProject() = default;

ViewFeederProject::~ViewFeederProject() = default;

void ViewFeederProject::on_changed(const Obj::Property* property)
{
    ViewFeeder::on_changed(property);
    if (m_project != nullptr)
        m_project->changed(nullptr);
}

OBJ_REGISTER_CLASS(Gui::ViewFeederProjectObject, Gui::ViewFeeder)

ViewFeederProjectObject::ViewFeederProjectObject() = default;

ViewFeederProjectObject::~ViewFeederProjectObject() = default;

void ViewFeederProjectObject::on_changed(const Obj::Property* property)
{
    ViewFeeder::on_changed(property);
    if (m_object != nullptr)
        m_object->notifyChange();
}

} // namespace Gui
