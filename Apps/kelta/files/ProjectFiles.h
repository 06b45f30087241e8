#pragma once

#include "ProjectRecords.h"
#include "Recovery.h"

#include "kelta/FileService.h"
#include "projectfile/ProjectStore.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace Gui {
class MainWindow;
class MDIWindow;
} // namespace Gui

namespace Obj {
class Project;
class ProjectObject;
class Property;
} // namespace Obj

namespace kelta {

/// The files of the material projects that are open: opens and saves them, knows what has changed since, asks before
/// something would be lost, and keeps copies for recovery.
class ProjectFiles final : public QObject, public FileService
{
    Q_OBJECT

public:
    explicit ProjectFiles(Gui::MainWindow& mainWindow);
    /// Leaves the copies for recovery where they are.
    ~ProjectFiles() override;

    bool open(const QString& path) override;
    bool may_end() override;
    void end() override;
    void offer_recovery() override;
    QString get_file(const Obj::Project& project) const override;
    bool is_modified(const Obj::Project& project) const override;

    /// Saves a project in its file, or asks for one. False when the user gave up, or it could not be saved.
    bool save(Mat::DocumentMaterial& project);
    bool saveAs(Mat::DocumentMaterial& project);
    /// Adds the materials of an exchange document to a project.
    bool importDocument(Mat::DocumentMaterial& project, const QString& path);

    /// The files last used, the latest first.
    static QStringList recentFiles();

    /// Keeps a copy for recovery of every project that has changed since the last one.
    void keepCopies();

private:
    /// What an object is beside its material and its label.
    struct Look
    {
        bool suppressed = false;
        std::array<float, 4> colour{};
    };
    /// A project, as far as its file is concerned.
    struct Session
    {
        QString path; ///< empty before it is first saved
        projectfile::FileStamp stamp;
        QByteArray content; ///< of the file, as far as it does not depend on the run
        std::optional<projectfile::FileLock> lock;
        FurtherMembers further;
        bool isRecovered = false; ///< not saved since it was recovered: the file is older
        bool isModified = false;
        bool isCopyDue = false;
        std::unique_ptr<RecoveryCopy> copy;
        std::map<std::uint32_t, Look> looks;
        std::vector<boost::signals2::scoped_connection> connections;
    };

    void add(Obj::Project& project);
    void remove(Obj::Project& project);
    void objectChanged(Obj::ProjectObject& object, const Obj::Property* property);
    void markModified(const Obj::Project& project);
    /// The history says that the project is as its file is: finds out whether that is so.
    void reconsider(Session& session, std::uint32_t projectId);
    Session* find(const Obj::Project& project);
    const Session* find(const Obj::Project& project) const;

    Obj::Project* openRecord(projectfile::ProjectRecord& record, FurtherMembers& further);
    Mat::DocumentMaterial* findOpen(const QString& path);
    bool recover(RecoveryCopy& copy);
    bool openFile(const QString& path);
    bool saveTo(Mat::DocumentMaterial& project, const QString& path);
    /// Whether a project may be written to a file: asks about other programs and later changes, and takes its lock.
    bool mayWrite(Session& session, const QString& path);
    void takeLock(Session& session);
    bool mayReplace(const Session& session, const QString& path);
    /// Whether a project may go: asks when it has changes that are not saved, or editors that are not applied.
    bool mayClose(Obj::Project& project);
    bool applyEditors(const Obj::Project& project);
    std::vector<QPointer<Gui::MDIWindow>> changedEditors(const Obj::Project& project) const;
    /// Takes the lock of a file, and asks when another program has it.
    bool mayUse(projectfile::FileLock& lock, const QString& path);
    void forgetCopy(Session& session);
    /// Says what was doubted in a file, where the user sees it.
    void warn(const QString& path, const std::vector<std::string>& doubts);
    static void remember(const QString& path);
    static void forget(const QString& path);
    void complain(const QString& title, const QString& text);

    Gui::MainWindow& m_mainWindow;
    std::map<std::uint32_t, Session>
        m_sessions;                    ///< by the number of the project, also of those that undo can bring back
    std::uint32_t m_cleanProject = 0;  ///< the one whose file agrees with the clean state of the history; 0 for none
    std::uint32_t m_openedProject = 0; ///< likewise, once the history before it has ended
    QTimer m_timer{this};
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace kelta
