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

/// The sessions of all open projects, and of closed projects that undo can restore. Detects changes of the projects.
class Sessions : public QObject
{
    Q_OBJECT

public:
    Sessions();
    ~Sessions() override;

    /// Returns the session of a project; null if the project is unknown.
    Session* find(const Obj::Project& project);
    const Session* find(const Obj::Project& project) const;
    /// Returns the open project of a file; null if the file is not open.
    Obj::Project* findOpen(const QString& path) const;

    /// Marks a project as modified, and its copy for recovery as due.
    void markModified(const Obj::Project& project);
    /// Must be called when a project has been opened. Its session must be complete, with the flag of modification.
    void noteOpened(Obj::Project& project);
    /// Must be called when a project has been saved.
    void noteSaved(Obj::Project& project);
    /// Deletes all copies for recovery.
    void forgetCopies();

    /// Filling a project during the lifetime of this object does not mark the project as modified.
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
    /// Sent when a project without changes becomes modified.
    void becameModified();

private:
    void add(Obj::Project& project);
    void watch(Obj::Project& project, Session& session);
    void remove(const Obj::Project& project);
    void objectAdded(Obj::ProjectObject& object);
    void objectChanged(Obj::ProjectObject& object, const Obj::Property* property);
    void historyMoved();
    void historyIsClean(bool clean);
    /// Compares a project with its file after the history has returned to the step at which they agreed.
    static void reconsider(Session& session, Obj::Project& project);

    std::map<std::uint32_t, Session> m_sessions; ///< by the id of the project
    std::uint32_t m_cleanProject =
        0; ///< the id of the project that is saved in the clean state of the history; 0 for none
    std::uint32_t m_openedProject = 0; ///< becomes m_cleanProject when the present history ends; 0 for none
    int m_fillings = 0;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace desktop
