#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

/// Importing any bytes as a document succeeds or throws a ContentError. What was imported makes a project that can be
/// written and read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const auto numbering : {projectfile::Numbering::OfDocument, projectfile::Numbering::Anew}) {
        projectfile::ImportedMaterials imported;
        try {
            imported = projectfile::importExchange(text, numbering);
        } catch (const projectfile::ContentError&) {
            return 0;
        }
        const std::size_t count = imported.materials.size();
        const std::string written =
            projectfile::writeProject(projectfile::makeProject("Imported", std::move(imported.materials)));
        if (projectfile::readProject(written).objects.size() != count)
            std::abort();
    }
    return 0;
}
