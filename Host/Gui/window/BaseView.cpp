#include "Gui/BaseView.h"

#include "Gui/GuiProject.h"

namespace Gui {

KELTA_REGISTER_ABSTRACT_CLASS(Gui::BaseView, Kelta::RootClass)

BaseView::BaseView(GuiProject* project) : m_project(project)
{
    if (project != nullptr)
        project->connectView(this);
}

BaseView::~BaseView()
{
    if (m_project != nullptr)
        m_project->disconnect_view(this);
}

GuiProject* BaseView::getGuiProject() const
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

void BaseView::attach(GuiProject& project)
{
    m_project = &project;
    project.connectView(this);
}

} // namespace Gui
