#include "Gui/GuiProject.h"

#include "Gui/BaseView.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"
#include "Obj/PropertyRecords.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <utility>

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

/// Gives a new node the properties of an earlier one. Must be called before the node is attached: restoring is not a
/// change of the project.
void restoreProperties(ViewFeeder& node, const Json::Value& record)
{
    Kelta::guarded(QCoreApplication::translate("Gui::GuiProject", "The properties of a tree node cannot be restored"),
                   [&] { static_cast<void>(Obj::readProperties(node, record)); });
}

} // namespace

GuiProject::GuiProject(Obj::Project& project, NodeProperties kept) : m_project(project), m_kept(std::move(kept))
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
        restoreProperties(*m_projectFeeder, std::exchange(m_kept.ofProject, {}));
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
        if (const auto kept = m_kept.ofObjects.extract(object->getObjectId()))
            restoreProperties(*feeder, kept.mapped());
        feeder->attach(*object);
    }
    return feeder.get();
}

NodeProperties GuiProject::recordNodes() const
{
    NodeProperties nodes = m_kept;
    if (m_projectFeeder != nullptr && m_projectFeeder->hasChanged())
        nodes.ofProject = Obj::writeProperties(*m_projectFeeder);
    for (const auto& [object, feeder] : m_feeders)
        if (feeder->hasChanged())
            nodes.ofObjects[object->getObjectId()] = Obj::writeProperties(*feeder);
    return nodes;
}

void GuiProject::forgetDeletedNodes()
{
    for (auto kept = m_kept.ofObjects.begin(); kept != m_kept.ofObjects.end();)
        kept = m_project.get_object(kept->first) == nullptr ? m_kept.ofObjects.erase(kept) : std::next(kept);
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
    const auto found = m_feeders.find(&object);
    if (found == m_feeders.end())
        return;
    if (found->second->hasChanged())
        m_kept.ofObjects[object.getObjectId()] = Obj::writeProperties(*found->second);
    m_feeders.erase(found);
}

void GuiProject::passOn(const Obj::ProjectObject& object, const Obj::Property* property)
{
    const auto found = m_feeders.find(&object);
    if (property != nullptr && found != m_feeders.end())
        found->second->updateData(property);
}

} // namespace Gui
