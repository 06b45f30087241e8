#pragma once

#include "Gui/GuiExport.h"

#include <QByteArray>
#include <QObject>

#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;

/// Copies and pastes objects of every class, also between programs.
///
/// The clipboard holds "application/x-kelta-objects+json", and the same as text: an object with "kelta_objects", the
/// version 1, and "objects", an array of objects with the members
/// - "class", "label" and "suppressed"; earlier programs write only these and "content";
/// - "project", "project_class", "id" and "name": the source of the copy;
/// - "properties", "node" (properties of the tree node), "links" (ids of objects), "group" (id), "settings" (texts by
/// name) and "content" (of the class's codec, see Obj::ContentCodec), each if it is not empty;
/// - "record" instead of "properties", "node" and "content" for an object whose class is missing
/// (Obj::PlaceholderObject).
///
/// References and links between objects that are pasted together refer to the copies. References and links to other
/// objects are kept in the project that the objects were copied from, and left out in other projects.
class GUI_EXPORT ObjectClipboard : public QObject
{
    Q_OBJECT

public:
    static constexpr const char* mimeType = "application/x-kelta-objects+json";

    /// `application` provides the nodes and must outlive the clipboard.
    explicit ObjectClipboard(GuiApplication& application);
    ~ObjectClipboard() override;

    /// Returns a description of the objects.
    QByteArray write(const std::vector<Obj::ProjectObject*>& objects) const;
    /// Adds the described objects to a project, in one undoable step. Returns the objects that are in it afterwards. If
    /// the project cannot take an object, nothing is added, and the message log names that object. Other objects that
    /// cannot be read are reported and left out. A text of another kind adds nothing.
    std::vector<Obj::ProjectObject*> read(const QByteArray& text, Obj::Project& project) const;
    /// Adds a copy of each object to its project, and returns the copies that are in it afterwards.
    std::vector<Obj::ProjectObject*> duplicate(const std::vector<Obj::ProjectObject*>& objects) const;

    /// Copies objects to the system's clipboard.
    void copy(const std::vector<Obj::ProjectObject*>& objects) const;
    /// Returns whether the system's clipboard holds objects.
    bool holdsObjects();
    /// Adds the objects of the system's clipboard to a project, as read does.
    std::vector<Obj::ProjectObject*> paste(Obj::Project& project) const;

private:
    GuiApplication& m_application;
    bool m_isKnown = false; ///< whether m_holdsObjects describes the present content
    bool m_holdsObjects = false;
};

} // namespace Gui
