#pragma once

#include "Opening.h"
#include "Questions.h"
#include "Recovery.h"
#include "Saving.h"
#include "Sessions.h"

#include "kelta/DocumentImport.h"
#include "kelta/FileService.h"

#include <QObject>
#include <QTimer>
#include <boost/signals2/connection.hpp>

namespace desktop {

/// Opens and saves projects of every class, asks the user before anything is lost, and keeps copies for recovery.
class ProjectFiles final : public QObject, public FileService
{
    Q_OBJECT

public:
    /// Whether copies for recovery are kept.
    enum class Copies
    {
        Keep,
        None, ///< for a program without a user, since nobody recovers its work
    };

    struct Options
    {
        Copies copies = Copies::Keep;
        Questions::ForeignLocks foreignLocks = Questions::ForeignLocks::Ask;
    };

    ProjectFiles(Gui::MainWindow& mainWindow, Options options);
    /// Does not delete the copies for recovery; end() deletes them.
    ~ProjectFiles() override;

    bool open(const QString& path) override;
    bool mayEnd() override;
    void end() override;
    void offerRecovery() override;
    QString getFile(const Obj::Project& project) const override;
    bool isModified(const Obj::Project& project) const override;
    void contentChanged(Obj::ProjectObject& object) override;

    /// Makes a project from a file that must stay as it is, such as an example. The project has no file. Returns false,
    /// and tells the user the reason, if that fails.
    bool openCopy(const QString& path);
    /// Saves a project in its file; asks the user for a file if it has none. Returns false if the user cancels, or if
    /// the project cannot be saved.
    bool save(Obj::Project& project);
    /// Saves a project in a file that the user chooses. Returns the same as save().
    bool saveAs(Obj::Project& project);
    /// Adds the content of an exchange document to a project. Tells the user the reason and returns false if that
    /// fails. Returns false too if the user cancels, or if no module imports documents into such a project.
    bool importDocument(Obj::Project& project, const QString& path);

    /// Writes a copy for recovery of every project that has changed since its last copy, or whose open editors have.
    void keepCopies();

private:
    /// Returns whether a project may be closed. Asks the user if it has changes that are not saved, or edits that are
    /// not applied.
    bool mayClose(Obj::Project& project);
    /// Offers to import an exchange document that was given in place of a project file. Returns whether it was imported.
    bool offerImport(const QString& path);
    bool importIntoNewProject(const std::string& projectClass, const QString& path);
    /// Reads an exchange document for projects of a class. Tells the user the reason if that fails. Returns an empty function
    /// then, if the user cancels, and if no module imports documents into such projects.
    ImportStep readDocument(Kelta::TypeInfo projectClass, const QString& path);
    /// Adds what was read from a file to a project. Tells the user the reason and returns false if that fails.
    bool addDocument(Obj::Project& project, const ImportStep& add, const QString& path);

    Gui::MainWindow& m_mainWindow;
    Copies m_copies;
    Questions m_questions;
    Sessions m_sessions;
    Opening m_opening;
    Saving m_saving;
    Recovery m_recovery;
    QTimer m_timer{this};
    boost::signals2::scoped_connection m_projectClosing;
};

} // namespace desktop
