#include "Gui/BaseView.h"

#include "Gui/GuiProject.h"

namespace Gui {

Kelta::TypeInfo BaseView::classTypeId;

BaseView::BaseView(GuiProject* project) : m_project(project)
{
    if (project != nullptr)
        project->connect_view(this);
}

BaseView::~BaseView()
{
    if (m_project != nullptr)
        m_project->disconnect_view(this);
}

Kelta::TypeInfo BaseView::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo BaseView::getTypeId() const
{
    return classTypeId;
}

void BaseView::init()
{
    initSubclass(classTypeId, "Gui::BaseView", "Kelta::RootClass", nullptr);
}

GuiProject* BaseView::get_gui_project() const
{
    return m_project;
}

const char* BaseView::getName() const
{
    return "BaseView";
}

void BaseView::viewAll() {}

bool BaseView::has_message_handler(const char*) const
{
    return false;
}

bool BaseView::message_handler(const char*, const char**)
{
    return false;
}

void BaseView::remove_viewself() {}

QModelIndex BaseView::currentIndex() const
{
    return {};
}

QModelIndexList BaseView::selectedIndexes() const
{
    return {};
}

void BaseView::resizeColumn(int, int) {}

void BaseView::resizeRow(int, int) {}

void BaseView::updateCell(const Obj::Property*) {}

} // namespace Gui
