#pragma once

#include "Kelta/TypeInfo.h"
#include "kelta/KeltaShellExport.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace desktop {

/// An object with another label than its document gives it, because the project has an object with that label.
struct NewLabel
{
    QString inDocument;
    QString inProject;
};

/// The result of an import.
struct ImportOutcome
{
    std::vector<Obj::ProjectObject*> objects; ///< the added objects; the project owns them
    std::vector<std::string> doubts;          ///< sentences about data that the user must check
    std::vector<NewLabel> newLabels;          ///< in the order of the objects
};

/// Adds the content of a document that was read to a project, as one step of the history. Called at most once. Throws a
/// std::exception if the project cannot contain it; nothing is then added.
using ImportStep = std::function<ImportOutcome(Obj::Project& project)>;

/// Reads a document of a module, and asks the user for data that the document does not carry. Returns an empty function if
/// the user cancels. Throws a std::exception if the file cannot be read or is not such a document.
using DocumentImport = std::function<ImportStep(const QString& path)>;

/// Returns the filters of the file dialog for the documents of a module, in the user's language: "Exchange document (*.json)".
using DocumentFilters = std::function<QStringList()>;

/// Registers the import of documents into projects of a class, and of derived classes without an import of their own. A
/// later import of a class replaces an earlier one. Without filters, the file dialog shows exchange documents.
KELTA_SHELL_EXPORT void registerDocumentImport(const std::string& projectClass, DocumentImport import,
                                               DocumentFilters filters = {});

/// Returns the classes of projects for which an import is registered.
KELTA_SHELL_EXPORT std::vector<std::string> documentImportClasses();

/// Returns the import into projects of a class; null if neither the class nor a base class has one.
KELTA_SHELL_EXPORT const DocumentImport* findDocumentImport(Kelta::TypeInfo projectClass);

/// Returns the filters that were registered with this import; empty if there are none.
KELTA_SHELL_EXPORT QStringList documentFilters(Kelta::TypeInfo projectClass);

} // namespace desktop
