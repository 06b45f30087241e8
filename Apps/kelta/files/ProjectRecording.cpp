#include "ProjectRecording.h"

#include "DatabaseRecord.h"
#include "JsonMembers.h"
#include "PlaceholderRecord.h"

#include "Gui/GuiApplication.h"
#include "Gui/ViewFeeder.h"
#include "Obj/ContentCodec.h"
#include "Obj/Placeholder.h"
#include "Obj/PropertyRecords.h"

namespace desktop {

namespace {

/// The label is not included: it is a separate member of the record.
Json::Value recordProperties(const Obj::ProjectObject& object)
{
    Json::Value properties = Obj::writeProperties(object);
    properties.removeMember("Label");
    return properties.empty() ? Json::Value() : properties;
}

void recordParts(Obj::ProjectObject& object, const KeptObject& kept, projectfile::ObjectRecord& record)
{
    record.className = object.getTypeId().get_name();
    record.properties = recordProperties(object);
    addMissing(record.properties, kept.properties);
    record.node = recordNode(object);
    addMissing(record.node, kept.node);
    record.material = findMaterial(object);
    if (record.material != nullptr)
        moveColourFromNode(record);
    else
        record.content = Obj::findContentCodec(object.getTypeId()) != nullptr ? recordContent(object) : kept.content;
}

projectfile::ObjectRecord recordObject(Obj::ProjectObject& object, const KeptObject& kept)
{
    projectfile::ObjectRecord record;
    record.objectId = object.getObjectId();
    record.internalName = object.get_name_in_project();
    record.label = object.label.getValue();
    record.suppressed = object.isSuppressed();
    for (const Obj::ProjectObject* const other : object.getLinks())
        record.links.push_back(other->getObjectId());
    record.settings = object.getSettings();
    record.further = kept.further;
    if (const auto* const placeholder = dynamic_cast<const Obj::PlaceholderObject*>(&object))
        writePlaceholder(*placeholder, record);
    else
        recordParts(object, kept, record);
    return record;
}

void recordParts(const Obj::Project& project, const KeptMembers& kept, projectfile::ProjectRecord& record)
{
    record.className = project.getTypeId().get_name();
    record.properties = Obj::writeProperties(project);
    addMissing(record.properties, kept.properties);
    const Obj::ProjectCodec* const codec = Obj::findProjectCodec(project.getTypeId());
    record.record = codec != nullptr ? codec->write(project) : kept.record;
}

} // namespace

projectfile::MaterialOf findMaterialAccess(Kelta::TypeInfo type)
{
    for (; type.namesAType(); type = type.getParent())
        if (const projectfile::MaterialOf materialOf = projectfile::findMaterialClass(type.get_name()))
            return materialOf;
    return nullptr;
}

vxMat::MaterialBase* findMaterial(Obj::ProjectObject& object)
{
    const projectfile::MaterialOf materialOf = findMaterialAccess(object.getTypeId());
    return materialOf != nullptr ? &materialOf(object) : nullptr;
}

Json::Value recordNode(Obj::ProjectObject& object)
{
    const Gui::GuiApplication* const application = Gui::GuiApplication::Instance;
    const Gui::ViewFeeder* const node = application != nullptr ? application->get_view_feeder(&object) : nullptr;
    return node != nullptr ? Obj::writeProperties(*node) : Json::Value();
}

Json::Value recordContent(const Obj::ProjectObject& object)
{
    const Obj::ContentCodec* const codec = Obj::findContentCodec(object.getTypeId());
    return codec != nullptr ? codec->write(object) : Json::Value();
}

projectfile::ProjectRecord recordProject(Obj::Project& project, const KeptMembers& kept)
{
    static const KeptObject nothing;
    projectfile::ProjectRecord record;
    record.name = kept.name.whenOpen == project.get_name() ? kept.name.inFile : project.get_name();
    record.nextObjectId = project.getNextObjectId();
    record.settings = project.getSettings();
    if (const auto* const placeholder = dynamic_cast<const Obj::PlaceholderProject*>(&project))
        writePlaceholder(*placeholder, record);
    else
        recordParts(project, kept, record);
    for (Obj::ProjectObject* const object : project.getObjects()) {
        const auto found = kept.objects.find(object->getObjectId());
        record.objects.push_back(recordObject(*object, found != kept.objects.end() ? found->second : nothing));
    }
    record.database = recordDatabase(project, record, kept.database);
    record.further = kept.further;
    return record;
}

} // namespace desktop
