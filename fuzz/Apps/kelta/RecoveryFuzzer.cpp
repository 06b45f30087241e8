#include "Application.h"
#include "Fuzzing.h"
#include "Opening.h"
#include "ProjectRecording.h"
#include "Questions.h"
#include "Sessions.h"

#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>

namespace {

/// Opens the text as recovery and Open do. Returns null if it is refused.
Obj::Project* open(desktop::Opening& opening, std::string_view text)
try {
    projectfile::ProjectRecord record = projectfile::readProject(text);
    return opening.makeProject(record, QStringLiteral("copy.vxmat"));
} catch (const std::exception&) {
    return nullptr;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::startApplication();
    return 0;
}

/// A recovery copy or project file with any content is opened in the application, or refused with an exception. What
/// was opened can be saved, and the saved text is read without an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static desktop::Questions questions(vxfuzz::mainWindow(), desktop::Questions::ForeignLocks::Ask);
    static desktop::Sessions sessions;
    static desktop::Opening opening(vxfuzz::mainWindow(), sessions, questions, [](const QString&) { return false; });
    if (Obj::Project* const project = open(opening, vxfuzz::textOf(data, size))) {
        const desktop::Session* const session = sessions.find(*project);
        const auto record = desktop::recordProject(*project, session->kept);
        const std::string saved = projectfile::writeProject(record);
        if (projectfile::writeProject(projectfile::readProject(saved)) != saved)
            std::abort();
    }
    vxfuzz::resetApplication();
    return 0;
}
