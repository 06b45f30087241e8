#include "Gui/EditCommands.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "Obj/Property.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <cstdint>
#include <memory>
#include <utility>

namespace Gui {

namespace {

/// Where a set of properties is found again, whatever was deleted and brought back meanwhile.
struct Place
{
    std::uint32_t projectId = 0;
    std::uint32_t objectId = 0; ///< 0 for the project itself
    bool isNode = false;        ///< the tree node instead of what it shows
};

Place placeOf(const Obj::ProjectObject& object)
{
    return {object.get_project()->getProjectId(), object.getObjectId(), false};
}

Place placeOf(const Obj::PropertyDS& owner)
{
    if (const auto* const object = dynamic_cast<const Obj::ProjectObject*>(&owner))
        return placeOf(*object);
    if (const auto* const project = dynamic_cast<const Obj::Project*>(&owner))
        return {project->getProjectId(), 0, false};
    Place place;
    if (const auto* const node = dynamic_cast<const ViewFeederProjectObject*>(&owner))
        place = placeOf(*node->getObject());
    else if (const auto* const projectNode = dynamic_cast<const ViewFeederProject*>(&owner))
        place.projectId = projectNode->getProject()->getProjectId();
    place.isNode = true;
    return place;
}

Obj::ProjectObject* findObject(const Place& place)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
    return project != nullptr ? project->get_object(place.objectId) : nullptr;
}

Obj::PropertyDS* findOwner(const Place& place)
{
    Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
    Obj::ProjectObject* const object = findObject(place);
    if (!place.isNode)
        return place.objectId != 0 ? static_cast<Obj::PropertyDS*>(object) : project;
    GuiProject* const guiProject =
        GuiApplication::Instance != nullptr ? GuiApplication::Instance->get_project(project) : nullptr;
    if (guiProject == nullptr)
        return nullptr;
    return place.objectId != 0 ? static_cast<Obj::PropertyDS*>(guiProject->get_view_feeder(object))
                               : guiProject->get_view_feeder();
}

class PropertyEdit final : public QUndoCommand
{
public:
    PropertyEdit(const QString& text, const Place& place, std::string name, std::string before, std::string after)
        : QUndoCommand(text),
          m_place(place),
          m_name(std::move(name)),
          m_before(std::move(before)),
          m_after(std::move(after))
    {}

    void undo() override { set(m_before); }
    void redo() override
    {
        if (std::exchange(m_done, true))
            set(m_after);
    }

private:
    void set(const std::string& text) const
    {
        const Obj::PropertyDS* const owner = findOwner(m_place);
        Obj::Property* const property = owner != nullptr ? owner->get_property_by_name(m_name.c_str()) : nullptr;
        // Every text that is kept here has been read before.
        if (property != nullptr)
            static_cast<void>(property->from_text(text));
    }

    Place m_place;
    std::string m_name;
    std::string m_before;
    std::string m_after;
    bool m_done = false;
};

class SuppressionEdit final : public QUndoCommand
{
public:
    SuppressionEdit(const QString& text, const Place& place, bool suppressed)
        : QUndoCommand(text), m_place(place), m_suppressed(suppressed)
    {}

    void undo() override { set(!m_suppressed); }
    void redo() override
    {
        if (std::exchange(m_done, true))
            set(m_suppressed);
    }

private:
    void set(bool suppressed) const
    {
        if (Obj::ProjectObject* const object = findObject(m_place))
            object->setSuppressed(suppressed);
    }

    Place m_place;
    bool m_suppressed;
    bool m_done = false;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("Gui::EditCommands", text);
}

} // namespace

bool editProperty(Obj::PropertyDS& owner, const char* name, const std::string& text)
{
    Obj::Property* const property = owner.get_property_by_name(name);
    if (property == nullptr)
        return false;
    const std::string before = property->to_text();
    if (before == text)
        return true;
    // An object without a visible label could not be found again.
    const auto* const object = dynamic_cast<Obj::ProjectObject*>(&owner);
    if (object != nullptr && property == &object->label && QString::fromStdString(text).trimmed().isEmpty())
        return false;
    const Place place = placeOf(owner);
    if (!property->from_text(text))
        return false;
    // Who hears of the change may have deleted what was changed.
    const Obj::PropertyDS* const left = findOwner(place);
    if (left != nullptr)
        vxMsg::MessageProxy::instance().pushDone(
            std::make_unique<PropertyEdit>(tr("Change \"%1\"").arg(QString::fromUtf8(name)), place, name, before,
                                           left->get_property_by_name(name)->to_text()));
    return true;
}

void setSuppressed(Obj::ProjectObject& object, bool suppressed)
{
    if (object.isSuppressed() == suppressed)
        return;
    const QString text = (suppressed ? tr("Suppress \"%1\"") : tr("Unsuppress \"%1\""))
                             .arg(QString::fromStdString(object.label.getValue()));
    const Place place = placeOf(object);
    // Who hears of it may delete the object; nothing is left to undo then.
    object.setSuppressed(suppressed);
    if (findObject(place) != nullptr)
        vxMsg::MessageProxy::instance().pushDone(std::make_unique<SuppressionEdit>(text, place, suppressed));
}

} // namespace Gui
