#include "MaterialVerbs.h"

#include "MaterialChange.h"

#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "kelta/Batch.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QTextStream>

#include <memory>
#include <utility>

namespace kelta {

namespace {

using Failure = std::optional<QString>;

QString tr(const char* text)
{
    return QCoreApplication::translate("kelta::Batch", text);
}

Mat::DocumentMaterial* findProject()
{
    const auto projects = Obj::Application::get_projects(Mat::materialProjectTag);
    return projects.empty() ? nullptr : static_cast<Mat::DocumentMaterial*>(projects.front());
}

/// The one material that is selected, in a project of materials; null otherwise.
Mat::MaterialObject* selectedMaterial()
{
    const auto objects =
        Gui::TreeSelectionSingleton::instance().get_objects_of_type(Mat::MaterialObject::getClassTypeId());
    if (objects.size() != 1 || dynamic_cast<Mat::DocumentMaterial*>(objects.front()->get_project()) == nullptr)
        return nullptr;
    return static_cast<Mat::MaterialObject*>(objects.front());
}

bool isSame(const std::string& name, const QString& typed)
{
    return QString::fromStdString(name).compare(typed, Qt::CaseInsensitive) == 0;
}

Failure useLibraryMaterial(const QStringList& arguments)
{
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr || arguments.size() != 1)
        return tr("the name of a library material, and one selected material, are needed");
    for (const auto& [type, material] : object->getMatMgr().materials) {
        if (!isSame(material->name, arguments[0]))
            continue;
        auto before = copyOf(*object->getCMaterial());
        object->setCMaterial(material.get());
        recordChange(*object, std::move(before));
        return std::nullopt;
    }
    return tr("the library has no material \"%1\"").arg(arguments[0]);
}

Failure setQuantity(const QStringList& arguments)
{
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr || arguments.size() != 2)
        return tr("a quantity and its value, and one selected material, are needed");
    for (const auto& [id, quantity] : object->getMatMgr().propertyCatalogue) {
        if (!isSame(quantity->name, arguments[0]) && !isSame(quantity->key, arguments[0]))
            continue;
        const std::string value = arguments[1].toStdString();
        if (const char* const wrong = vxMat::checkRow(id, value))
            return QString::fromUtf8(vxMat::withoutRowNumber(wrong).data());
        // From the text, as the editor does it; what the text does not say comes from the catalogue.
        auto property =
            std::make_unique<vxMat::MaterialProperty>(id, quantity->name, value, quantity->key, quantity->description);
        property->unit = quantity->unit;
        property->category = quantity->category;
        auto before = copyOf(*object->getCMaterial());
        object->getCMaterial()->setProperty(id, std::move(property));
        recordChange(*object, std::move(before));
        return std::nullopt;
    }
    return tr("the catalogue has no quantity \"%1\"").arg(arguments[0]);
}

Failure clearMaterial(const QStringList&)
{
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr)
        return tr("one selected material is needed");
    auto before = copyOf(*object->getCMaterial());
    object->getCMaterial()->clearProperties();
    recordChange(*object, std::move(before));
    return std::nullopt;
}

Failure checkMaterials(const QStringList&)
{
    Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    return project->check_all_materials() ? Failure() : Failure(tr("the materials are not ready"));
}

Failure collectMaterials(const QStringList&)
{
    Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    project->collect_frontend_data();
    return std::nullopt;
}

Failure printCards(const QStringList&)
{
    const Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    QTextStream output(stdout);
    for (const Obj::ProjectObject* const object : project->get_objects_of_type(Mat::MaterialObject::getClassTypeId())) {
        vxCAE::MaterialEntry entry;
        static_cast<const Mat::MaterialObject*>(object)->getCMaterial()->copyTo(entry.material.get());
        entry.classifyKind();
        const vxCAE::CardSet cards = vxCAE::makeCardSet(entry, vxCAE::MaterialSource::Complete);
        output << QString::fromStdString(object->label.getValue()) << '\n';
        for (const vxCAE::SolverCard& card : cards.cards)
            output << QString::fromStdString(card.name + ":\n" + card.text) << '\n';
        for (const std::string& doubt : cards.doubts)
            QTextStream(stderr) << QString::fromStdString(object->label.getValue() + ": " + doubt) << '\n';
    }
    return std::nullopt;
}

} // namespace

void registerMaterialVerbs()
{
    Batch::register_verb(QStringLiteral("use"), useLibraryMaterial);
    Batch::register_verb(QStringLiteral("set"), setQuantity);
    Batch::register_verb(QStringLiteral("clear"), clearMaterial);
    Batch::register_verb(QStringLiteral("check"), checkMaterials);
    Batch::register_verb(QStringLiteral("collect"), collectMaterials);
    Batch::register_verb(QStringLiteral("cards"), printCards);
}

} // namespace kelta
