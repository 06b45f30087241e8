#include "vxMaterial/project/MaterialObject.h"

#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MessageBox.h"

#include <QObject>

#include <algorithm>
#include <new>

namespace Mat {

OBJ_REGISTER_CLASS(Mat::MaterialObject, Obj::ProjectObject)

MaterialObject::MaterialObject() : material(std::make_unique<vxMat::CMaterial>("MaterialObject"))
{
    id.setValue(0);
    classLabel.setValue("Material");
    registerProperty(propertyData, id, "ID", "Info", 1, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", 1, "class name");
    MaterialObject::setObjectState(Obj::eVXObjectState::Initial);
}

MaterialObject::~MaterialObject() = default;

const char* MaterialObject::get_viewfeeder_name() const
{
    return "MatGui::ViewFeederMaterialObject";
}

void MaterialObject::refreshProperties(bool stateToo)
{
    Obj::ProjectObject::refreshProperties(stateToo);
}

short MaterialObject::always_run() const
{
    return -1;
}

void MaterialObject::save_jsonDB(Json::Value& record)
{
    record["obj_id"] = Json::Value::UInt(getObjectId());
    record["class"] = getClassTypeId().get_name();
    record["name_internal"] = get_name_in_project();
    record["label"] = label.getValue();
}

void MaterialObject::load_jsonDB(Json::Value&) {}

Obj::eVXObjectState MaterialObject::check_input()
{
    const auto state = material->properties.empty() ? Obj::eVXObjectState::Initial : Obj::eVXObjectState::Ready;
    setObjectState(state);
    return state;
}

Obj::ProjectObjectExecReturn* MaterialObject::execute()
try {
    // Both the text and the result need memory.
    return new Obj::ProjectObjectExecReturn("MaterialObject::execute().", this);
} catch (const std::bad_alloc&) {
    return nullptr;
}

void MaterialObject::setCMaterial(const vxMat::MaterialBase* source)
{
    material->copyFrom(*source);
}

void MaterialObject::initCMaterial(vxMat::eMaterialType type)
{
    if (type == vxMat::eMaterialType::StructuralSteel) {
        const vxMat::StructuralSteel steel;
        setCMaterial(&steel);
    }
    check_input();
}

vxMat::MatDBManager& MaterialObject::getMatMgr() const
{
    return static_cast<DocumentMaterial*>(get_project())->getMatMgr();
}

bool MaterialObject::check_input_data()
{
    const QString name = QObject::tr(label.getValue().c_str());
    const QString title = QObject::tr("Input check");
    if (material->properties.empty()) {
        showCritical(title, QObject::tr("No property is defined in '%1'.").arg(name));
        return false;
    }
    const auto held = propertiesInCatalogueOrder(*material);
    const auto isRefused = [](const vxMat::HeldProperty& one) { return one.property->value <= 0.0; };
    if (std::any_of(held.begin(), held.end(), isRefused)) {
        showWarning(title,
                    QObject::tr("Material property defined in '%1' has value equal or less than zero.").arg(name));
        return false;
    }
    return true;
}

bool MaterialObject::exportToFile(const std::string&, char, char, char) const
{
    return true;
}

bool MaterialObject::importFromFile(const std::string&, char, char, char)
{
    return false;
}

void MaterialObject::on_configuring_project() {}

void MaterialObject::on_changed(const Obj::Property* changed)
{
    check_input();
    Obj::ProjectObject::on_changed(changed);
}

} // namespace Mat
