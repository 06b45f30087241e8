#include "vxMsg/MessageProxy.h"

#include "History.h"
#include "UndoCommands.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/ReadableName.h"

#include <QCoreApplication>

#include <utility>

namespace vxMsg {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxMsg", text);
}

QString shown(const std::string& text)
{
    return QString::fromStdString(text);
}

bool report(const QString& text)
{
    Kelta::MessageLog::error(text);
    return false;
}

Obj::Project* findProject(const std::string& name)
{
    Obj::Project* const project = Obj::Application::instance().get_project(name);
    if (project == nullptr)
        report(tr("There is no project \"%1\"; nothing was done.").arg(shown(name)));
    return project;
}

bool isOpen(const Obj::Project& project)
{
    return Obj::Application::instance().get_project(project.getProjectId()) == &project;
}

/// A request of a listener while a step is undone or redone would change the running stack.
bool mayAct()
{
    return !History::isUndoing() || report(tr("Requests are refused during undo and redo; nothing was done."));
}

QString labelOf(const Obj::ProjectObject& object)
{
    return shown(object.label.getValue());
}

/// The user could not find an object with a blank label in the tree.
bool isBlankLabel(const Obj::PropertyDS& owner, const Obj::Property& property, const std::string& text)
{
    const auto* const object = dynamic_cast<const Obj::ProjectObject*>(&owner);
    return object != nullptr && &property == &object->label && shown(text).trimmed().isEmpty();
}

/// Returns a property that can be set to the text; null, with a report, if there is none.
Obj::Property* findSettable(const PropertyPlace& place, const std::string& name, const std::string& text)
{
    const Obj::PropertyDS* const owner = place.find();
    Obj::Property* const property = owner != nullptr ? owner->get_property_by_name(name.c_str()) : nullptr;
    if (property == nullptr)
        report(tr("There is no property \"%1\"; nothing was changed.").arg(shown(name)));
    else if (owner->is_read_only(property))
        report(tr("The property \"%1\" is read-only; nothing was changed.").arg(Obj::readableName(name.c_str())));
    else if (isBlankLabel(*owner, *property, text))
        report(tr("The label must not be empty; nothing was changed."));
    else
        return property;
    return nullptr;
}

/// Returns the text of a step that changes a property. Names the object by its label before the change.
QString textOfChange(const PropertyPlace& place, const std::string& propertyName)
{
    const QString property = Obj::readableName(propertyName.c_str());
    const Obj::ProjectObject* const object = place.findObject();
    return object != nullptr ? tr(R"(Change "%1" of "%2")").arg(property, labelOf(*object))
                             : tr("Change \"%1\"").arg(property);
}

/// Sets the property. Returns false if it cannot read the text. Exceptions of listeners are reported; the value is set.
bool setText(Obj::Property& property, const std::string& name, const std::string& text)
{
    bool isRead = true;
    Kelta::guarded(tr("An object failed when its property \"%1\" was changed").arg(Obj::readableName(name.c_str())),
                   [&] { isRead = property.fromText(text); });
    return isRead || report(tr(R"(The property "%1" cannot be "%2"; nothing was changed.)")
                                .arg(Obj::readableName(name.c_str()), shown(text)));
}

} // namespace

/// While an instance lives, a project is being opened, and its additions cannot be undone.
class MessageProxy::Opening
{
public:
    explicit Opening(MessageProxy& proxy) : m_proxy(proxy), m_outer(std::exchange(proxy.m_opening, this)) {}
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;
    ~Opening() { m_proxy.m_opening = m_outer; }

    /// The first added project belongs to the opening.
    void claim(const Obj::Project& project)
    {
        if (m_projectId == 0)
            m_projectId = project.getProjectId();
    }
    // NOLINTNEXTLINE(misc-no-recursion): openings are inside each other only if filling a project opens another one
    bool concerns(const Obj::Project& project) const
    {
        return m_projectId == project.getProjectId() || (m_outer != nullptr && m_outer->concerns(project));
    }

private:
    MessageProxy& m_proxy;
    Opening* m_outer;
    std::uint32_t m_projectId = 0;
};

MessageProxy& MessageProxy::instance()
{
    static MessageProxy proxy;
    return proxy;
}

MessageProxy::MessageProxy() : m_history(std::make_unique<History>())
{
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        projectWasAdded(*project);
    // Called before other listeners, whose changes follow in the history.
    m_connections.emplace_back(application.projectAdded.connect(
        [this](Obj::Project& project) { projectWasAdded(project); }, boost::signals2::at_front));
    m_connections.emplace_back(application.projectRemoved.connect(
        [this](Obj::Project& project) { projectWasRemoved(project); }, boost::signals2::at_front));
}

MessageProxy::~MessageProxy() = default;

QUndoStack& MessageProxy::undoStack()
{
    return m_history->stack();
}

// --- Requests ---

/// Carries out an act, and makes one step of it and of all changes that listeners make because of it. The command of
/// the act, null if nothing was done, precedes the commands of the listeners.
bool MessageProxy::carryOut(const QString& text, const Act& act)
{
    const Group group(text);
    const History::Place place = m_history->place();
    std::unique_ptr<QUndoCommand> command = act();
    if (command == nullptr)
        return false;
    m_history->record(std::move(command), place);
    return true;
}

bool MessageProxy::newProject(const std::string& className, const std::string& name)
{
    if (!mayAct())
        return false;
    // The project is detected like any other that is added during a request.
    const Group group{QString()};
    Obj::Project* const project = Obj::Application::instance().createProject(className.c_str(), name);
    if (project == nullptr)
        return false;
    projectCreated(*project);
    return true;
}

bool MessageProxy::closeProject(const std::string& name)
{
    const Obj::RemovalGuard guard;
    Obj::Project* const project = mayAct() ? findProject(name) : nullptr;
    if (project == nullptr || !mayClose(*project))
        return false;
    const QString text = tr("Close project \"%1\"").arg(shown(name));
    return carryOut(text, [&]() -> std::unique_ptr<QUndoCommand> {
        const OwnDoing doing(project);
        Obj::OwnedProject closed = Obj::Application::instance().takeProject(*project);
        return closed != nullptr ? std::make_unique<ProjectCommand>(text, std::move(closed)) : nullptr;
    });
}

bool MessageProxy::mayClose(Obj::Project& project)
{
    const QString name = QString::fromUtf8(project.get_name());
    // A listener that repeats the request would be called again.
    if (!m_closingProjects.insert(project.getProjectId()).second)
        return report(tr("The project \"%1\" is being closed already; nothing was done.").arg(name));
    bool refused = false;
    projectClosing(project, refused);
    m_closingProjects.erase(project.getProjectId());
    if (!refused && !isOpen(project))
        return report(tr("A listener closed the project \"%1\" before the request was carried out.").arg(name));
    return !refused;
}

bool MessageProxy::renameProject(const std::string& name, const std::string& newName)
{
    Obj::Project* const project = mayAct() ? findProject(name) : nullptr;
    if (project == nullptr)
        return false;
    if (newName == name)
        return true;
    if (shown(newName).trimmed().isEmpty())
        return report(tr("The name of a project must not be empty; nothing was changed."));
    if (Obj::Application::instance().get_project(newName) != nullptr)
        return report(tr("Another open project has the name \"%1\"; nothing was changed.").arg(shown(newName)));
    const QString text = tr("Rename \"%1\"").arg(shown(name));
    return carryOut(text, [&]() -> std::unique_ptr<QUndoCommand> {
        auto command = std::make_unique<RenameCommand>(text, project->getProjectId(), name, newName);
        Obj::Application::instance().renameProject(*project, newName);
        return command;
    });
}

bool MessageProxy::addObject(const std::string& projectName, const std::string& className,
                             const std::string& objectName)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    // The addition is detected like any other.
    const Group group{QString()};
    Obj::ProjectObject* const object = project->add_object(className.c_str(), objectName);
    if (object == nullptr)
        return false;
    objectCreated(*object);
    return true;
}

bool MessageProxy::deleteObject(const std::string& projectName, const std::string& objectName)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    const Obj::ProjectObject* const object = project->get_object(objectName);
    if (object == nullptr)
        return report(
            tr(R"(The project "%1" has no object "%2"; nothing was done.)").arg(shown(projectName), shown(objectName)));
    const QString text = tr("Delete \"%1\"").arg(labelOf(*object));
    return carryOut(text, [&] {
        const OwnDoing doing(object);
        return std::make_unique<ObjectCommand>(text, *project, project->takeObject(object->getObjectId()));
    });
}

bool MessageProxy::setProperty(const PropertyPlace& place, const std::string& propertyName, const std::string& text)
{
    Obj::Property* const property = mayAct() ? findSettable(place, propertyName, text) : nullptr;
    if (property == nullptr)
        return false;
    if (property->toText() == text)
        return true;
    bool isRead = false;
    const QString stepText = textOfChange(place, propertyName);
    carryOut(stepText, [&]() -> std::unique_ptr<QUndoCommand> {
        Json::Value before = property->toJson();
        isRead = setText(*property, propertyName, text);
        // A listener may have deleted the changed object; then there is nothing to undo.
        const Obj::PropertyDS* const owner = isRead ? place.find() : nullptr;
        if (owner == nullptr)
            return nullptr;
        Json::Value after = owner->get_property_by_name(propertyName.c_str())->toJson();
        return std::make_unique<PropertyCommand>(stepText, place, propertyName, std::move(before), std::move(after));
    });
    return isRead;
}

bool MessageProxy::setSetting(const std::string& projectName, const std::string& name, const std::string& text)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    if (name.empty())
        return report(tr("The name of a setting must not be empty; nothing was changed."));
    if (project->getSetting(name) == text)
        return true;
    const QString readable = Obj::readableName(name.c_str());
    const QString stepText =
        text.empty() ? tr("Reset \"%1\"").arg(readable) : tr(R"(Change "%1" to "%2")").arg(readable, shown(text));
    return carryOut(stepText, [&]() -> std::unique_ptr<QUndoCommand> {
        auto command =
            std::make_unique<SettingCommand>(stepText, PropertyPlace(*project), name, project->getSetting(name), text);
        project->setSetting(name, text);
        return command;
    });
}

bool MessageProxy::setSetting(Obj::ProjectObject& object, const std::string& name, const std::string& text)
{
    if (!mayAct())
        return false;
    if (object.get_project() == nullptr)
        return report(tr("\"%1\" is in no project; nothing was changed.").arg(labelOf(object)));
    if (name.empty())
        return report(tr("The name of a setting must not be empty; nothing was changed."));
    if (object.getSetting(name) == text)
        return true;
    // The text is not shown: it may be very long.
    const QString stepText = (text.empty() ? tr(R"(Remove "%1" of "%2")") : tr(R"(Change "%1" of "%2")"))
                                 .arg(Obj::readableName(name.c_str()), labelOf(object));
    return carryOut(stepText, [&]() -> std::unique_ptr<QUndoCommand> {
        auto command =
            std::make_unique<SettingCommand>(stepText, PropertyPlace(object), name, object.getSetting(name), text);
        object.setSetting(name, text);
        return command;
    });
}

bool MessageProxy::setSuppressed(Obj::ProjectObject& object, bool suppressed)
{
    if (!mayAct() || object.get_project() == nullptr)
        return false;
    if (object.isSuppressed() == suppressed)
        return true;
    const PropertyPlace place(object);
    const QString text = (suppressed ? tr("Suppress \"%1\"") : tr("Unsuppress \"%1\"")).arg(labelOf(object));
    carryOut(text, [&]() -> std::unique_ptr<QUndoCommand> {
        object.setSuppressed(suppressed);
        // A listener may have deleted the object; then there is nothing to undo.
        return place.findObject() != nullptr ? std::make_unique<SuppressionCommand>(text, place, suppressed) : nullptr;
    });
    return true;
}

bool MessageProxy::handOver(const std::string& projectName)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    const Group group(tr("Hand over \"%1\"").arg(shown(projectName)));
    return Kelta::guarded(tr("The project \"%1\" cannot be handed over").arg(shown(projectName)), [project] {
        project->executeDue();
        project->collect_frontend_data();
    });
}

// --- Opening ---

Obj::Project* MessageProxy::openProject(const std::string& className, const std::string& name,
                                        const std::function<void(Obj::Project&)>& fill)
{
    return open([&] { return Obj::Application::instance().createProject(className.c_str(), name); }, fill);
}

Obj::Project* MessageProxy::openProject(Obj::OwnedProject project, const std::string& name,
                                        const std::function<void(Obj::Project&)>& fill)
{
    return open([&] { return Obj::Application::instance().addProject(std::move(project), name); }, fill);
}

Obj::Project* MessageProxy::open(const std::function<Obj::Project*()>& make,
                                 const std::function<void(Obj::Project&)>& fill)
{
    if (!mayAct())
        return nullptr;
    const Group group{QString()};
    const History::Place place = m_history->place();
    const Opening opening(*this);
    Obj::Project* const before = Obj::Application::get_current_project();
    Obj::Project* const project = make();
    if (project == nullptr)
        return nullptr;
    try {
        fill(*project);
    } catch (...) {
        takeBack(*project, before);
        throw;
    }
    project->notifyRestored();
    if (!isOpen(*project))
        return nullptr;
    // Additions of listeners to other projects meanwhile can still be undone.
    m_history->end(place);
    return project;
}

void MessageProxy::takeBack(const Obj::Project& opened, Obj::Project* before)
{
    const OwnDoing closing(&opened);
    m_watches.erase(opened.getProjectId());
    Obj::Application::instance().closeProject(opened);
    if (before != nullptr)
        Obj::Application::instance().setCurrentProject(*before);
}

// --- Groups ---

MessageProxy::Group::Group(const QString& text)
{
    instance().m_history->beginGroup(text);
}

MessageProxy::Group::~Group()
{
    instance().m_history->endGroup();
}

void MessageProxy::nameStepByItsFirstRequest()
{
    m_history->nameGroupByItsFirstCommand();
}

void MessageProxy::pushDone(std::unique_ptr<QUndoCommand> command)
{
    m_history->record(std::move(command));
}

// --- Changes without a request ---

void MessageProxy::projectWasAdded(Obj::Project& project)
{
    // A project that returns is still watched only once.
    Watch& watch = m_watches[project.getProjectId()];
    watch.added = project.objectAdded.connect([this](Obj::ProjectObject& object) { objectWasAdded(object); },
                                              boost::signals2::at_front);
    watch.removed = project.objectRemoved.connect([this](Obj::ProjectObject& object) { objectWasRemoved(object); },
                                                  boost::signals2::at_front);
    if (m_opening != nullptr)
        return m_opening->claim(project);
    if (m_history->isInGroup() && !History::isUndoing() && isOpen(project))
        pushDone(std::make_unique<ProjectCommand>(tr("New project \"%1\"").arg(QString::fromUtf8(project.get_name())),
                                                  project));
}

void MessageProxy::projectWasRemoved(Obj::Project& project)
{
    if (OwnDoing::concerns(&project))
        return;
    m_watches.erase(project.getProjectId());
    m_history->end();
}

void MessageProxy::objectWasAdded(Obj::ProjectObject& object)
{
    // Objects that undo restores are in the history already. Additions of listeners during an undo cannot be undone.
    const Obj::Project* const project = object.get_project();
    const bool isOpened = project == nullptr || (m_opening != nullptr && m_opening->concerns(*project));
    if (!History::isUndoing() && !isOpened)
        pushDone(std::make_unique<ObjectCommand>(tr("Add \"%1\"").arg(labelOf(object)), object));
}

void MessageProxy::objectWasRemoved(Obj::ProjectObject& object)
{
    if (!OwnDoing::concerns(&object))
        m_history->end();
}

} // namespace vxMsg
