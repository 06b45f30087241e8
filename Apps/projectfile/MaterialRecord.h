#pragma once

#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <stdexcept>

namespace projectfile {

/// A record that is none of a material, and what is wrong with it.
class PROJECTFILE_EXPORT RecordError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~RecordError() override;
};

/// The complete material, unlike an exchange document: every field of every property, words and lists, units,
/// descriptions and categories, and the key under which each property is held.
///
/// An object with "id", "name", "library_group" and "properties": an array, in the order of the keys, of objects with
/// "held_as", "id", "name", "key", "value", "text", "values", "description", "unit" and "category". Numbers that JSON
/// has no word for are the texts "Infinity", "-Infinity" and "NaN".
PROJECTFILE_EXPORT Json::Value writeMaterial(const vxMat::MaterialBase& material);

/// Makes `material` what the record says. A member that is missing has its default.
/// \throws RecordError when the record is none; the material is then as it was
PROJECTFILE_EXPORT void readMaterial(vxMat::MaterialBase& material, const Json::Value& record);

} // namespace projectfile
