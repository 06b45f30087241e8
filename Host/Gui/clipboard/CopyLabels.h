#pragma once

#include "Gui/GuiExport.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

/// Makes labels for copies of objects and for imported objects, so that the user can distinguish a copy from its
/// original: "Frame copy", then "Frame copy 2". Project objects may have equal labels, but the user rarely wants that.
class GUI_EXPORT CopyLabels
{
public:
    /// Takes the labels in the project at this time into account.
    explicit CopyLabels(const Obj::Project& project);

    /// Returns the label of a copy of an object with this label: the label itself if no object of the project has it. A
    /// copy of a copy is numbered like a further copy of the original. Returns another label at each call.
    QString make(const QString& original);

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_lastNumbers; ///< of the copies, by the label of the original
};

} // namespace Gui
