#pragma once

#include "Session.h"

#include <QObject>

#include <cstdint>
#include <map>
#include <vector>

namespace Obj {
class Project;
class Property;
} // namespace Obj

namespace desktop {

/// The sessions of all projects that are open, and of closed ones as long as undo can bring them back. Notices changes of
/// projects.
class Sessions : public QObject
{
    Q_OBJECT

public:
    Sessions();
    ~Sessions() override;

    /// Returns the session of a project; null if the project is unknown.
    Session* find(const Obj::Project& project);
    const Session* find(const Obj::Project& project) const;
    /// Returns the open project that has a file; null if none has.
    Obj::Project* findOpen(const QString& path) const;

    void markModified(const Obj::Project& project);
    /// The project has just been opened: the session has the content, and says whether that is modified already.
    void noteOpened(Obj::Project& project);
    /// The file has just got the content of the project.
    void noteSaved(Obj::Project& project);
    /// Destroys all copies for recovery.
    void forgetCopies();

    /// While one lives, projects are being filled, which is not a change.
    class Filling
    {
    public:
        explicit Filling(Sessions& sessions) : m_sessions(sessions) { ++m_sessions.m_fillings; }
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;
        ~Filling() { --m_sessions.m_fillings; }

    private:
        Sessions& m_sessions;
    };

Q_SIGNALS:
    /// A project that had no changes is modified.
    void becameModified();

private:
    void add(Obj::Project& project);
    void watch(Obj::Project& project, Session& session);
    void remove(const Obj::Project& project);
    void objectAdded(Obj::ProjectObject& object);
    void objectChanged(Obj::ProjectObject& object, const Obj::Property* property);
    void historyMoved();
    void historyIsClean(bool clean);
    /// The history says that the project is as its file is: finds out whether that is so.
    static void reconsider(Session& session, Obj::Project& project);

    std::map<std::uint32_t, Session> m_sessions; ///< by the id of the project
    std::uint32_t m_cleanProject = 0;            ///< whose file agrees with the clean state of the history; 0 for none
    std::uint32_t m_openedProject = 0;           ///< likewise as soon as the present history has ended
    int m_fillings = 0;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace desktop
