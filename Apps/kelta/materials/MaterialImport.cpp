#include "MaterialImport.h"

#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace desktop {

ImportOutcome importDocument(Mat::DocumentMaterial& project, const QString& path)
{
    projectfile::ImportedMaterials imported;
    try {
        imported = projectfile::importExchange(projectfile::readFile(path), projectfile::Numbering::Anew);
    } catch (const projectfile::ContentError& error) {
        throw std::runtime_error(path.toStdString() + ": " + error.what());
    }
    constexpr std::uint64_t lastNumber = std::numeric_limits<std::uint32_t>::max();
    if (project.getNextObjectId() + imported.materials.size() > lastNumber + 1)
        throw std::runtime_error(QCoreApplication::translate("desktop::ProjectFiles",
                                                             "The project has no numbers left for so many materials.")
                                     .toStdString());
    ImportOutcome outcome;
    const vxMsg::MessageProxy::Group group(
        QCoreApplication::translate("desktop::ProjectFiles", "Import \"%1\"").arg(QFileInfo(path).fileName()));
    for (projectfile::ImportedMaterial& entry : imported.materials) {
        auto* const object =
            static_cast<Mat::MaterialObject*>(project.add_object("Mat::MaterialObject", entry.label.c_str()));
        object->label.setValue(entry.label);
        vxMat::CMaterial& material = *object->getCMaterial();
        material.name = entry.material->name;
        material.properties = std::move(entry.material->properties);
        object->refreshProperties(true);
        outcome.objects.push_back(object);
    }
    outcome.doubts = std::move(imported.doubts);
    return outcome;
}

} // namespace desktop
