#include "Fuzzing.h"

#include "Gui/GuiApplication.h"
#include "Gui/ObjectClipboard.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "vxMaterial/project/Module.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::useNoDisplay();
    vxfuzz::enterOwnFolder();
    static int count = 1;
    static char name[] = "fuzzer";
    static char* arguments[] = {name, nullptr};
    new Gui::GuiApplication(count, arguments); // lives as long as the process
    initMat();
    initMatGui();
    return 0;
}

/// Pasting any bytes adds objects or reports why not. What was pasted can be copied and pasted again, and undone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Gui::ObjectClipboard& clipboard = Gui::GuiApplication::Instance->objectClipboard();
    QUndoStack& history = vxMsg::MessageProxy::instance().undoStack();
    Obj::Project* const project = Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials");
    project->add_object("Mat::MaterialObject", "Material");
    history.clear();
    const std::size_t before = project->getObjectCount();

    const auto text = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const auto pasted = clipboard.read(text, *project);
    const auto again = clipboard.read(clipboard.write(pasted), *project);
    if (again.size() != pasted.size() || project->getObjectCount() != before + pasted.size() + again.size())
        std::abort();
    while (history.canUndo())
        history.undo();
    if (project->getObjectCount() != before)
        std::abort();

    history.clear();
    Obj::Application::instance().closeAllProjects();
    Kelta::MessageLog::instance().clear();
    return 0;
}
