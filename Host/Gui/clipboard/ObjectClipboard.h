#pragma once

#include "Gui/GuiExport.h"

#include <QByteArray>
#include <json/value.h>

#include <functional>
#include <string>
#include <vector>

class QMimeData;

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// How the content of objects of a class, of which the host knows nothing, is carried from one to another.
struct ObjectCodec
{
    /// The whole content of an object, an object or null.
    std::function<Json::Value(const Obj::ProjectObject&)> write;
    /// Gives an object what write answered. Throws, and leaves the object as it was, when it cannot be read.
    std::function<void(Obj::ProjectObject&, const Json::Value&)> read;
};

/// Copies and pastes objects, between programs too.
///
/// The clipboard holds "application/x-kelta-objects+json", and the same as text: an object with "kelta_objects", the
/// version 1, and "objects", an array of objects with "class", "label", "suppressed" and, where the class has a codec,
/// "content".
class GUI_EXPORT ObjectClipboard
{
public:
    static constexpr const char* mimeType = "application/x-kelta-objects+json";

    static void register_codec(const std::string& className, ObjectCodec codec);

    static QByteArray write(const std::vector<Obj::ProjectObject*>& objects);
    /// Adds the objects of such a text to a project, and answers them. What cannot be added is reported to the message
    /// log; a text that is none of ours adds nothing.
    static std::vector<Obj::ProjectObject*> read(const QByteArray& text, Obj::Project& project);

    /// The system's clipboard.
    static void copy(const std::vector<Obj::ProjectObject*>& objects);
    static bool holds_objects();
    static std::vector<Obj::ProjectObject*> paste(Obj::Project& project);
};

} // namespace Gui
