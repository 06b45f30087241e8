#pragma once

#include "Kelta/Exceptions.h"
#include "Obj/Application.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <cstdint>
#include <memory>

namespace vxMsg {

/// While one lives, what happens to one project or object happens on behalf of the proxy, and is not history of its own.
class OwnDoing
{
public:
    explicit OwnDoing(const void* thing) : m_before(current) { current = thing; }
    OwnDoing(const OwnDoing&) = delete;
    OwnDoing& operator=(const OwnDoing&) = delete;
    ~OwnDoing() { current = m_before; }

    static bool concerns(const void* thing) { return current == thing; }

private:
    static const void* current;
    const void* m_before;
};

/// While one lives, a command of the stack is undone or redone, and the stack must be left alone.
class Undoing
{
public:
    Undoing() { ++depth; }
    Undoing(const Undoing&) = delete;
    Undoing& operator=(const Undoing&) = delete;
    ~Undoing() { --depth; }

    static bool underWay() { return depth > 0; }

private:
    static int depth;
};

enum class Presence
{
    Here, ///< the command brought it here; undo takes it away
    Gone, ///< the command took it away; undo brings it back
};

/// That something came or went, and the thing itself while it is away. Made when that has happened. Commands know
/// projects and objects by their ids: what was destroyed past the proxy is then simply not found.
template <typename Thing>
class PresenceCommand : public QUndoCommand
{
public:
    PresenceCommand(const QString& text, Presence presence) : QUndoCommand(text), m_presence(presence) {}

    void undo() override { set(m_presence == Presence::Here ? Presence::Gone : Presence::Here); }
    void redo() override
    {
        if (m_done)
            set(m_presence);
        m_done = true;
    }

protected:
    virtual std::unique_ptr<Thing> take() = 0;
    virtual void restore(std::unique_ptr<Thing> thing) = 0;
    void keep(std::unique_ptr<Thing> thing) { m_kept = std::move(thing); }

private:
    void set(Presence presence)
    {
        const Undoing undoing;
        // The stack expects that commands throw nothing.
        Kelta::guarded(QCoreApplication::translate("vxMsg", "An undo or redo failed"), [&] {
            if (presence == Presence::Gone)
                m_kept = take();
            else if (m_kept != nullptr)
                restore(std::move(m_kept));
        });
    }

    Presence m_presence;
    bool m_done = false;
    std::unique_ptr<Thing> m_kept;
};

class ProjectCommand final : public PresenceCommand<Obj::Project>
{
public:
    /// The project has been made.
    ProjectCommand(const QString& text, const Obj::Project& project);
    /// The project has been closed.
    ProjectCommand(const QString& text, std::unique_ptr<Obj::Project> closed);

protected:
    std::unique_ptr<Obj::Project> take() override;
    void restore(std::unique_ptr<Obj::Project> project) override;

private:
    std::uint32_t m_projectId;
};

class ObjectCommand final : public PresenceCommand<Obj::ProjectObject>
{
public:
    /// The object has been added to its project.
    ObjectCommand(const QString& text, const Obj::ProjectObject& object);
    /// The object has been taken out of `project`.
    ObjectCommand(const QString& text, const Obj::Project& project, std::unique_ptr<Obj::ProjectObject> deleted);

protected:
    std::unique_ptr<Obj::ProjectObject> take() override;
    void restore(std::unique_ptr<Obj::ProjectObject> object) override;

private:
    std::uint32_t m_projectId;
    std::uint32_t m_objectId;
};

} // namespace vxMsg
