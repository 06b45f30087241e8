#pragma once

#include <QString>

#include <string>
#include <vector>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace kelta {

/// What has come into a project from an exchange document, and what was doubted on the way.
struct ImportOutcome
{
    std::vector<Obj::ProjectObject*> objects;
    std::vector<std::string> doubts;
};

/// Adds the materials of an exchange document to a project, under numbers of the project's own, as one step of the
/// history. What did not travel comes from the catalogue.
/// \throws std::exception when the file cannot be read or is no such document; nothing has been added then
ImportOutcome importDocument(Mat::DocumentMaterial& project, const QString& path);

} // namespace kelta
