#include "ProjectRecords.h"

#include "Gui/GuiApplication.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Property.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace kelta {

namespace {

/// The colour of the node; null without one, as in a program without windows.
Obj::PropertyColor* findColour(Obj::ProjectObject& object)
{
    Gui::ViewFeeder* const node =
        Gui::GuiApplication::Instance != nullptr ? Gui::GuiApplication::Instance->get_view_feeder(&object) : nullptr;
    return node != nullptr ? dynamic_cast<Obj::PropertyColor*>(node->get_property_by_name("MaterialColor")) : nullptr;
}

projectfile::ObjectRecord makeRecord(Mat::MaterialObject& object, const FurtherMembers& further)
{
    projectfile::ObjectRecord record;
    record.objectId = object.getObjectId();
    record.className = object.getTypeId().get_name();
    record.internalName = object.get_name_in_project();
    record.label = object.label.getValue();
    record.suppressed = object.isSuppressed();
    record.colour = colourOf(object);
    record.material = object.getCMaterial();
    if (const auto found = further.objects.find(record.objectId); found != further.objects.end())
        record.further = found->second;
    return record;
}

void fillObject(Mat::MaterialObject& object, const projectfile::ObjectRecord& record, vxMat::MaterialBase& material)
{
    object.label.setValue(record.label);
    object.getCMaterial()->swap(material);
    object.setSuppressed(record.suppressed);
    object.check_input();
    Obj::PropertyColor* const colour = record.colour ? findColour(object) : nullptr;
    if (colour != nullptr)
        colour->setValue({(*record.colour)[0], (*record.colour)[1], (*record.colour)[2], (*record.colour)[3]});
}

/// Gives a record the members that only an earlier one has.
void addMissing(Json::Value& record, const Json::Value& earlier)
{
    for (const std::string& name : earlier.getMemberNames())
        if (!record.isMember(name))
            record[name] = earlier[name];
}

/// Writes back what the database of the file said beyond what this host knows, of the project and of each object.
void addMissingFromDatabase(Json::Value& database, const Json::Value& earlier)
{
    if (!earlier.isObject())
        return;
    addMissing(database, earlier);
    const Json::Value& earlierObjects = earlier["objects"];
    // A project without objects has null there.
    if (!earlierObjects.isObject() || !database["objects"].isObject())
        return;
    addMissing(database["objects"], earlierObjects);
    std::unordered_map<std::uint64_t, const Json::Value*> byNumber;
    for (const Json::Value& object : earlierObjects["object"])
        byNumber[object["obj_id"].asUInt64()] = &object;
    for (Json::Value& object : database["objects"]["object"])
        if (const auto found = byNumber.find(object["obj_id"].asUInt64()); found != byNumber.end())
            addMissing(object, *found->second);
}

} // namespace

std::optional<std::array<float, 4>> colourOf(Obj::ProjectObject& object)
{
    const Obj::PropertyColor* const property = findColour(object);
    if (property == nullptr)
        return std::nullopt;
    const Obj::Color& colour = property->getValue();
    return std::array<float, 4>{colour.red, colour.green, colour.blue, colour.alpha};
}

projectfile::ProjectRecord makeRecord(Mat::DocumentMaterial& project, const FurtherMembers& further)
{
    projectfile::ProjectRecord record;
    record.name = project.get_name();
    record.nextObjectId = project.get_next_object_id();
    project.save_jsonDB(record.database);
    addMissingFromDatabase(record.database, further.database);
    for (Obj::ProjectObject* const object : project.get_objects_of_type(Mat::MaterialObject::getClassTypeId()))
        record.objects.push_back(makeRecord(*static_cast<Mat::MaterialObject*>(object), further));
    record.further = further.project;
    return record;
}

void fillProject(Obj::Project& project, projectfile::ProjectRecord& record, FurtherMembers& further)
{
    for (projectfile::ObjectRecord& entry : record.objects) {
        auto* const object = dynamic_cast<Mat::MaterialObject*>(
            project.add_object(entry.className.c_str(), entry.internalName, entry.objectId));
        if (object == nullptr || entry.ownMaterial == nullptr)
            throw projectfile::ContentError(
                QCoreApplication::translate("kelta::ProjectFiles",
                                            R"(The object "%1" is of the class "%2", which is none of a material)")
                    .arg(QString::fromStdString(entry.label), QString::fromStdString(entry.className))
                    .toStdString());
        fillObject(*object, entry, *entry.ownMaterial);
        if (!entry.further.isNull())
            further.objects[entry.objectId] = std::move(entry.further);
    }
    project.skip_object_ids(record.nextObjectId);
    further.project = std::move(record.further);
    further.database = std::move(record.database);
}

} // namespace kelta
