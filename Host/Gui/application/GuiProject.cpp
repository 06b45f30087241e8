#include "Gui/GuiProject.h"

#include "Gui/BaseView.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"

#include <QCoreApplication>

#include <algorithm>

namespace Gui {

namespace {

/// Returns a node of a registered class, or a plain node if the class is unknown, of another kind or cannot be made.
template <typename Feeder>
std::unique_ptr<Feeder> makeFeeder(const char* className)
{
    std::unique_ptr<Kelta::RootClass> created;
    Kelta::guarded(QCoreApplication::translate("Gui::GuiProject", "The tree node \"%1\" cannot be made")
                       .arg(QString::fromUtf8(className)),
                   [&] { created = Kelta::RootClass::createByName(className); });
    if (auto* const feeder = dynamic_cast<Feeder*>(created.get())) {
        created.release(); // NOLINT(bugprone-unused-return-value): the pointer below owns it
        return std::unique_ptr<Feeder>(feeder);
    }
    return std::make_unique<Feeder>();
}

} // namespace

GuiProject::GuiProject(Obj::Project& project) : m_project(project)
{
    m_objectRemoved = project.objectRemoved.connect([this](Obj::ProjectObject& object) { removeFeeder(object); });
    m_objectChanged = project.objectChanged.connect(
        [this](Obj::ProjectObject& object, const Obj::Property* property) { passOn(object, property); });
}

GuiProject::~GuiProject()
{
    m_feeders.clear();
    while (!m_views.empty()) {
        BaseView* const view = m_views.back();
        m_views.pop_back();
        view->remove_viewself();
    }
}

ViewFeederProject* GuiProject::get_view_feeder()
{
    if (m_projectFeeder == nullptr) {
        m_projectFeeder = makeFeeder<ViewFeederProject>(m_project.get_viewfeeder_name());
        m_projectFeeder->attach(m_project);
    }
    return m_projectFeeder.get();
}

ViewFeederProjectObject* GuiProject::get_view_feeder(Obj::ProjectObject* object)
{
    if (object == nullptr || object->get_project() != &m_project)
        return nullptr;
    std::unique_ptr<ViewFeederProjectObject>& feeder = m_feeders[object];
    if (feeder == nullptr) {
        feeder = makeFeeder<ViewFeederProjectObject>(object->get_viewfeeder_name());
        feeder->attach(*object);
    }
    return feeder.get();
}

void GuiProject::connectView(BaseView* view)
{
    m_views.push_back(view);
}

void GuiProject::disconnect_view(BaseView* view)
{
    m_views.erase(std::remove(m_views.begin(), m_views.end(), view), m_views.end());
}

void GuiProject::removeFeeder(const Obj::ProjectObject& object)
{
    TreeSelectionSingleton::instance().forget(object);
    m_feeders.erase(&object);
}

void GuiProject::passOn(const Obj::ProjectObject& object, const Obj::Property* property)
{
    const auto found = m_feeders.find(&object);
    if (property != nullptr && found != m_feeders.end())
        found->second->updateData(property);
}

} // namespace Gui
