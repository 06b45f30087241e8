#include "projectfile/MaterialRecord.h"
#include "projectfile/ProjectFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// Reading any bytes as a project succeeds or throws a ContentError. A project that was read can be written, and reading
/// and writing it again gives the same text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    projectfile::ProjectRecord project;
    try {
        project = projectfile::readProject(text);
    } catch (const projectfile::ContentError&) {
        return 0;
    }
    const std::string written = projectfile::writeProject(project);
    if (projectfile::writeProject(projectfile::readProject(written)) != written)
        std::abort();
    for (const projectfile::ObjectRecord& object : project.objects) {
        if (object.material == nullptr)
            continue;
        vxMat::MaterialBase copy;
        projectfile::readMaterial(copy, projectfile::writeMaterial(*object.material));
    }
    return 0;
}
