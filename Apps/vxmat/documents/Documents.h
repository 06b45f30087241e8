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

namespace commandline {

/// A file that the user gave: an exchange document or a project file.
struct Input
{
    std::string path;
    std::string text;
    vxjson::JsonTree tree;                             ///< the tree of the text; its root is an object
    std::optional<projectfile::ProjectRecord> project; ///< absent for an exchange document
};

/// Reads a file, or standard input.
/// \throws Failure if the file cannot be read, is not JSON, is neither an exchange document nor a project file, or is
/// an invalid project file
Input readInput(const std::string& path);

/// Parses a text that was read from `path`.
/// \throws Failure as readInput() does
Input parseInput(const std::string& path, std::string text);

/// Returns an exchange document as a value of jsoncpp. Arrays and objects that are nested more deeply than any that a
/// reader looks at are empty, because in this form they would take a hundred times the memory of the text.
Json::Value toDocument(const Input& document);

/// Returns a finding for each member that occurs in one object more than once.
std::vector<vxCAE::Finding> findRepeatedMembers(const Input& input);

/// Reads the sections of a document into a set of its kind.
/// \throws Failure if a value cannot be converted; the message names the file
void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document);

/// A material in a file.
struct FileMaterial
{
    std::uint32_t number = 0;
    std::string label;                           ///< the label for the user; also the name of the material
    std::unique_ptr<vxCAE::MaterialEntry> entry; ///< classified; never null
    /// The record of the object in the project, without the material; empty for a document.
    projectfile::ObjectRecord object{};
};

/// The materials of a file of any kind.
struct MaterialFile
{
    std::string path;
    vxCAE::MaterialSource source = vxCAE::MaterialSource::Document; ///< Complete if the file is a project
    std::vector<FileMaterial> materials;                            ///< by number
    std::vector<projectfile::ObjectRecord> others;                  ///< other objects of a project, by number
    std::string unitSystem;          ///< the setting of a project; empty if there is none
    std::vector<std::string> doubts; ///< of the reader, with the name of the file
};

/// Reads the materials of a material document, or of a project.
/// \throws Failure if the file cannot be read or is an analysis without materials
MaterialFile readMaterials(const std::string& path);
MaterialFile readMaterials(Input input);

/// Returns the materials of a file as a document. For a project, it is the document that an export would write.
/// \throws Failure as readMaterials does
Json::Value readMaterialDocument(const std::string& path);

} // namespace commandline
