#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"

#include <json/value.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vxmat {

/// A file that the user gave: an exchange document or a project file.
struct Input
{
    std::string path;
    std::string text;
    Json::Value document;                              ///< an object; null for a project
    std::optional<projectfile::ProjectRecord> project; ///< absent for an exchange document
};

/// Reads a file, or standard input.
/// \throws Failure when it cannot be read, is not JSON, or belongs to neither this program nor the solver; when it is a
/// project file with which something is wrong
Input readInput(const std::string& path);

/// Reads the sections of a document into a set of its kind.
/// \throws Failure, which names the file, when a value cannot be converted
void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document);

/// A material that stands in a file.
struct FileMaterial
{
    std::uint32_t number = 0;
    std::string label;                            ///< what the user sees; its material has it as name too
    std::unique_ptr<vxCAE::MaterialEntry> entry;  ///< classified; never null
    bool suppressed = false;                      ///< documents do not tell
    std::optional<std::array<float, 4>> colour{}; ///< documents do not tell
};

/// The materials of a file, whichever it is.
struct MaterialFile
{
    std::string path;
    vxCAE::MaterialSource source = vxCAE::MaterialSource::Document; ///< Complete for a project
    std::vector<FileMaterial> materials;                            ///< by number
    std::vector<std::string> doubts;                                ///< of reading, with the name of the file
};

/// Reads the materials of a material document, or of a project.
/// \throws Failure when the file cannot be read or is an analysis without materials
MaterialFile readMaterials(const std::string& path);
MaterialFile readMaterials(Input input);

/// The materials as a document: for a project the one that would be exported.
/// \throws Failure as readMaterials does
Json::Value readMaterialDocument(const std::string& path);

} // namespace vxmat
