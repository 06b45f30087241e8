#pragma once

#include "Opening.h"
#include "Questions.h"
#include "Recovery.h"
#include "Saving.h"
#include "Sessions.h"

#include "kelta/FileService.h"

#include <QObject>
#include <QTimer>
#include <boost/signals2/connection.hpp>

namespace desktop {

/// The project files of the program, for projects of every class: opens and saves them, asks before something would be
/// lost, and keeps copies for recovery.
class ProjectFiles final : public QObject, public FileService
{
    Q_OBJECT

public:
    explicit ProjectFiles(Gui::MainWindow& mainWindow);
    /// Leaves the copies for recovery where they are.
    ~ProjectFiles() override;

    bool open(const QString& path) override;
    bool mayEnd() override;
    void end() override;
    void offerRecovery() override;
    QString getFile(const Obj::Project& project) const override;
    bool isModified(const Obj::Project& project) const override;
    void contentChanged(Obj::ProjectObject& object) override;

    /// Saves a project in its file, or asks for one. Returns false if the user gave up, or if the project could not be
    /// saved.
    bool save(Obj::Project& project);
    bool saveAs(Obj::Project& project);
    /// Adds the content of an exchange document to a project whose module imports such documents.
    bool importDocument(Obj::Project& project, const QString& path);

    /// Keeps a copy for recovery of every project that has changed since the last one.
    void keepCopies();

private:
    /// Whether a project may be closed: asks if it has changes that are not saved, or editors that are not applied.
    bool mayClose(Obj::Project& project);

    Gui::MainWindow& m_mainWindow;
    Questions m_questions;
    Sessions m_sessions;
    Opening m_opening;
    Saving m_saving;
    Recovery m_recovery;
    QTimer m_timer{this};
    boost::signals2::scoped_connection m_projectClosing;
};

} // namespace desktop
