#pragma once

#include "Obj/Application.h"
#include "vxMsg/PropertyPlace.h"

#include <QUndoCommand>
#include <json/value.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace vxMsg {

/// While an instance lives, the proxy itself removes a project or an object, and records the removal.
class OwnDoing
{
public:
    explicit OwnDoing(const void* thing) : m_before(std::exchange(current, thing)) {}
    OwnDoing(const OwnDoing&) = delete;
    OwnDoing& operator=(const OwnDoing&) = delete;
    ~OwnDoing() { current = m_before; }

    static bool concerns(const void* thing) { return current == thing; }

private:
    static const void* current;
    const void* m_before;
};

/// A command that is made after it has been carried out: its first redo does nothing.
class DoneCommand : public QUndoCommand
{
public:
    using QUndoCommand::QUndoCommand;

    void redo() final
    {
        if (std::exchange(m_isRecorded, true))
            doAgain();
    }

protected:
    virtual void doAgain() = 0;

private:
    bool m_isRecorded = false;
};

enum class Presence
{
    Here, ///< the command added it; undo removes it
    Gone, ///< the command removed it; undo restores it
};

/// The addition or removal of a project or an object, which the command owns while it is removed. Commands store ids of
/// projects and objects, so that they do not find a project or object that was destroyed without a request.
template <typename Owned>
class PresenceCommand : public DoneCommand
{
public:
    PresenceCommand(const QString& text, Presence presence) : DoneCommand(text), m_presence(presence) {}

    void undo() override { m_presence == Presence::Here ? remove() : restore(); }
    bool isRemoval() const { return m_presence == Presence::Gone; }

protected:
    void doAgain() override { m_presence == Presence::Here ? restore() : remove(); }
    virtual Owned take() = 0;
    virtual void putBack(Owned thing) = 0;
    void keep(Owned thing) { m_kept = std::move(thing); }

private:
    void remove() { m_kept = take(); }
    void restore()
    {
        if (m_kept != nullptr)
            putBack(std::move(m_kept));
    }

    Presence m_presence;
    Owned m_kept;
};

class ProjectCommand final : public PresenceCommand<Obj::OwnedProject>
{
public:
    /// Records that the project has been made.
    ProjectCommand(const QString& text, const Obj::Project& project);
    /// Records that the project has been closed.
    ProjectCommand(const QString& text, Obj::OwnedProject closed);

protected:
    Obj::OwnedProject take() override;
    void putBack(Obj::OwnedProject project) override;

private:
    std::uint32_t m_projectId;
};

class ObjectCommand final : public PresenceCommand<Obj::OwnedObject>
{
public:
    /// Records that the object has been added to its project.
    ObjectCommand(const QString& text, const Obj::ProjectObject& object);
    /// Records that the object has been removed from `project`.
    ObjectCommand(const QString& text, const Obj::Project& project, Obj::OwnedObject deleted);

protected:
    Obj::OwnedObject take() override;
    void putBack(Obj::OwnedObject object) override;

private:
    std::uint32_t m_projectId;
    std::uint32_t m_objectId;
};

/// A new value of a property. The values are stored as in project files: a reference finds its object by the id.
class PropertyCommand final : public DoneCommand
{
public:
    PropertyCommand(const QString& text, PropertyPlace place, std::string name, Json::Value before, Json::Value after);

    void undo() override { set(m_before); }

protected:
    void doAgain() override { set(m_after); }

private:
    void set(const Json::Value& value) const;

    PropertyPlace m_place;
    std::string m_name;
    Json::Value m_before;
    Json::Value m_after;
};

/// Another name of a project. If the name is taken meanwhile, the project keeps the name that it has.
class RenameCommand final : public DoneCommand
{
public:
    RenameCommand(const QString& text, std::uint32_t projectId, std::string before, std::string after);

    void undo() override { set(m_before); }

protected:
    void doAgain() override { set(m_after); }

private:
    void set(const std::string& name) const;

    std::uint32_t m_projectId;
    std::string m_before;
    std::string m_after;
};

/// Another text of a setting of a project or an object; an empty text if the setting is missing.
class SettingCommand final : public DoneCommand
{
public:
    SettingCommand(const QString& text, PropertyPlace place, std::string name, std::string before, std::string after);

    void undo() override { set(m_before); }

protected:
    void doAgain() override { set(m_after); }

private:
    void set(const std::string& text) const;

    PropertyPlace m_place;
    std::string m_name;
    std::string m_before;
    std::string m_after;
};

class SuppressionCommand final : public DoneCommand
{
public:
    SuppressionCommand(const QString& text, PropertyPlace place, bool suppressed);

    void undo() override { set(!m_suppressed); }

protected:
    void doAgain() override { set(m_suppressed); }

private:
    void set(bool suppressed) const;

    PropertyPlace m_place;
    bool m_suppressed;
};

} // namespace vxMsg
