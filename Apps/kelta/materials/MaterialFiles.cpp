#include "MaterialFiles.h"

#include "MaterialImport.h"

#include "Obj/ContentCodec.h"
#include "decks/DeckImport.h"
#include "kelta/DocumentImport.h"
#include "kelta/FileService.h"
#include "projectfile/MaterialClasses.h"
#include "projectfile/MaterialRecord.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QStringList>

namespace desktop {

namespace {

constexpr const char* projectClass = "Mat::DocumentMaterial";
constexpr const char* objectClass = "Mat::MaterialObject";

vxMat::MaterialBase& materialOf(Obj::ProjectObject& object)
{
    return *static_cast<Mat::MaterialObject&>(object).getCMaterial();
}

Json::Value writeContent(const Obj::ProjectObject& object)
{
    return projectfile::writeMaterial(*static_cast<const Mat::MaterialObject&>(object).getCMaterial());
}

void readContent(Obj::ProjectObject& object, const Json::Value& content)
{
    projectfile::readMaterial(materialOf(object), content);
}

QStringList filters()
{
    const auto filter = [](const char* text, const QString& patterns) {
        return QStringLiteral("%1 (%2)").arg(QCoreApplication::translate("desktop::MaterialFiles", text), patterns);
    };
    const QString documents = QStringLiteral("*.json");
    const QString decks = deckPatterns();
    return {filter(QT_TRANSLATE_NOOP("desktop::MaterialFiles", "Documents and decks"),
                   documents + QLatin1Char(' ') + decks),
            filter(QT_TRANSLATE_NOOP("desktop::MaterialFiles", "Exchange documents"), documents),
            filter(QT_TRANSLATE_NOOP("desktop::MaterialFiles", "Decks of solvers"), decks)};
}

void tellFiles(Mat::MaterialObject& object)
{
    if (FileService* const files = FileService::instance())
        files->contentChanged(object);
}

} // namespace

void registerMaterialFiles()
{
    projectfile::registerMaterialClass(objectClass, materialOf);
    Obj::registerContentCodec(objectClass, {writeContent, readContent});
    registerDocumentImport(projectClass, readMaterialDocument, filters);
    MatGui::materialChanged().connect(tellFiles);
}

} // namespace desktop
