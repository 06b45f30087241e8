#include "plugin/Module.h"

#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Kelta/Exceptions.h"
#include "plugin/InspectorDock.h"

void initInspector()
{
    if (Gui::GuiApplication::Instance == nullptr)
        return;
    Kelta::guarded(QStringLiteral("initInspector"), [] {
        Gui::GuiApplication::Instance->contributions().addDock(
            {"Inspector", {"vxInspector", QT_TRANSLATE_NOOP("vxInspector", "Inspector")}, Gui::DockArea::Right, [] {
                 return new vxInspector::InspectorDock;
             }});
    });
}
