#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/json/JsonTree.h"

#include <json/value.h>

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
    vxjson::JsonTree tree;                             ///< of the text; an object
    std::optional<projectfile::ProjectRecord> project; ///< absent for an exchange document
};

/// Reads a file, or standard input.
/// \throws Failure if it cannot be read, is not JSON, belongs to neither this program nor the solver, or is a project
/// file in which something is wrong
Input readInput(const std::string& path);

/// Returns a finding for each member that is in one object more than once.
std::vector<vxCAE::Finding> findRepeatedMembers(const Input& input);

/// Reads the sections of a document into a set of its kind.
/// \throws Failure, which names the file, if a value cannot be converted
void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document);

/// A material in a file.
struct FileMaterial
{
    std::uint32_t number = 0;
    std::string label;                           ///< what the user sees; the name of the material too
    std::unique_ptr<vxCAE::MaterialEntry> entry; ///< classified; never null
    /// What the project says of the object, without the material; empty for a document.
    projectfile::ObjectRecord object{};
};

/// The materials of a file of any kind.
struct MaterialFile
{
    std::string path;
    vxCAE::MaterialSource source = vxCAE::MaterialSource::Document; ///< Complete for a project
    std::vector<FileMaterial> materials;                            ///< by number
    std::vector<projectfile::ObjectRecord> others;                  ///< the other objects of a project, by number
    std::vector<std::string> doubts;                                ///< of reading, with the name of the file
};

/// Reads the materials of a material document, or of a project.
/// \throws Failure if the file cannot be read or is an analysis without materials
MaterialFile readMaterials(const std::string& path);
MaterialFile readMaterials(Input input);

/// Returns the materials as a document: for a project the one that would be exported.
/// \throws Failure as readMaterials does
Json::Value readMaterialDocument(const std::string& path);

} // namespace vxmat
