#include "ProjectRestoring.h"

#include "JsonMembers.h"
#include "PlaceholderRecord.h"
#include "ProjectRecording.h"

#include "Gui/GuiApplication.h"
#include "Gui/ViewFeeder.h"
#include "Obj/ContentCodec.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"
#include "Obj/PropertyRecords.h"

#include <QCoreApplication>
#include <QStringList>

#include <exception>
#include <memory>
#include <set>
#include <utility>

namespace desktop {

static_assert(projectfile::deepestGroups == Obj::ProjectObjectGroup::deepestNesting,
              "what the check of a file accepts can be opened");

namespace {

/// Fills one project. Links are made after all objects have been added.
class Restoring
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    Restoring(Obj::Project& project, projectfile::ProjectRecord& record, KeptMembers& kept,
              std::vector<std::string>& warnings)
        : m_project(project), m_record(record), m_kept(kept), m_warnings(warnings)
    {}

    void run()
    {
        for (projectfile::ObjectRecord& entry : m_record.objects)
            addObject(entry);
        for (const auto& [object, entry] : m_objects)
            setProperties(*object, *entry);
        for (const auto& [object, entry] : m_objects)
            link(*object, *entry);
        fillProject();
        for (const auto& [object, entry] : m_objects)
            object->check_input();
        m_project.skipObjectIds(m_record.nextObjectId);
        warnOfMissingClasses();
    }

private:
    [[noreturn]] static void refuse(const QString& text) { throw projectfile::ContentError(text.toStdString()); }

    static QString labelOf(const projectfile::ObjectRecord& entry) { return QString::fromStdString(entry.label); }
    static QString classOf(const projectfile::ObjectRecord& entry) { return QString::fromStdString(entry.className); }

    bool isPlaceholder() const { return dynamic_cast<const Obj::PlaceholderProject*>(&m_project) != nullptr; }

    /// Returns a new object of the class of a record; null if there is no such class, or if its objects cannot contain
    /// the record or be in the project.
    Obj::OwnedObject createObject(const projectfile::ObjectRecord& entry) const
    {
        const Kelta::TypeInfo type = Kelta::TypeInfo::find(entry.className.c_str());
        const bool fits = type.is_inherited_from(Obj::ProjectObject::getClassTypeId()) && !isPlaceholder() &&
                          m_project.canTake(type) &&
                          (entry.ownMaterial != nullptr) == (findMaterialAccess(type) != nullptr);
        void* const created = fits ? type.create() : nullptr;
        return Obj::OwnedObject(static_cast<Obj::ProjectObject*>(static_cast<Kelta::RootClass*>(created)));
    }

    Obj::ProjectObject* makeObject(const projectfile::ObjectRecord& entry)
    {
        if (Obj::OwnedObject object = createObject(entry))
            return m_project.add_object(std::move(object), entry.internalName, entry.objectId);
        m_missingClasses.insert(entry.className);
        return m_project.add_object(std::make_unique<Obj::PlaceholderObject>(entry.className, recordOfObject(entry)),
                                    entry.internalName, entry.objectId);
    }

    void addObject(projectfile::ObjectRecord& entry)
    {
        Obj::ProjectObject* const object = makeObject(entry);
        if (object == nullptr)
            refuse(tr("The object \"%1\" of the class \"%2\" cannot be added to the project. The message log gives the "
                      "reason.")
                       .arg(labelOf(entry), classOf(entry)));
        object->label.setValue(entry.label);
        object->setSuppressed(entry.suppressed);
        for (auto& [name, text] : entry.settings)
            object->setSetting(name, std::move(text));
        if (!entry.further.isNull())
            keep(entry).further = std::move(entry.further);
        if (dynamic_cast<const Obj::PlaceholderObject*>(object) == nullptr)
            fillObject(*object, entry);
        m_objects.emplace_back(object, &entry);
    }

    void fillObject(Obj::ProjectObject& object, projectfile::ObjectRecord& entry)
    {
        if (entry.ownMaterial != nullptr)
            return findMaterial(object)->swap(*entry.ownMaterial);
        if (entry.content.isNull())
            return;
        if (const Obj::ContentCodec* const codec = Obj::findContentCodec(object.getTypeId()))
            return readContent(*codec, object, entry);
        keep(entry).content = std::move(entry.content);
        m_warnings.push_back(
            tr("The content of \"%1\" is kept, but no module can read it.").arg(labelOf(entry)).toStdString());
    }

    static void readContent(const Obj::ContentCodec& codec, Obj::ProjectObject& object,
                            const projectfile::ObjectRecord& entry)
    {
        try {
            codec.read(object, entry.content);
        } catch (const std::exception& error) {
            refuse(tr(R"(The content of the object "%1" of the class "%2" cannot be read: %3)")
                       .arg(labelOf(entry), classOf(entry), QString::fromUtf8(error.what())));
        }
    }

    void setProperties(Obj::ProjectObject& object, const projectfile::ObjectRecord& entry)
    {
        if (dynamic_cast<const Obj::PlaceholderObject*>(&object) != nullptr)
            return;
        const std::vector<std::string> unset = Obj::readProperties(object, entry.properties);
        warnOfProperties(entry.label, unset);
        if (!unset.empty())
            keep(entry).properties = membersOf(entry.properties, unset);
        const Json::Value node = nodeWithColour(entry);
        if (!node.isNull())
            setNode(object, entry, node);
    }

    void setNode(Obj::ProjectObject& object, const projectfile::ObjectRecord& entry, const Json::Value& properties)
    {
        const Gui::GuiApplication* const application = Gui::GuiApplication::Instance;
        Gui::ViewFeeder* const node = application != nullptr ? application->get_view_feeder(&object) : nullptr;
        if (node == nullptr) {
            keep(entry).node = properties;
            return;
        }
        const std::vector<std::string> unset = Obj::readProperties(*node, properties);
        warnOfProperties(entry.label, unset);
        if (!unset.empty())
            keep(entry).node = membersOf(properties, unset);
    }

    void link(Obj::ProjectObject& object, const projectfile::ObjectRecord& entry)
    {
        if (entry.links.empty())
            return;
        Json::Value links;
        for (const std::uint32_t id : entry.links)
            links.append(id);
        if (const std::size_t refused = Obj::readLinks(object, links); refused != 0)
            m_record.doubts.push_back(tr("%n link(s) of \"%1\" cannot be made.", nullptr, static_cast<int>(refused))
                                          .arg(labelOf(entry))
                                          .toStdString());
    }

    void fillProject()
    {
        m_kept.further = std::move(m_record.further);
        m_kept.database = std::move(m_record.database);
        for (auto& [name, text] : m_record.settings)
            m_project.setSetting(name, std::move(text));
        if (isPlaceholder()) {
            m_missingClasses.insert(m_record.className);
            return;
        }
        const std::vector<std::string> unset = Obj::readProperties(m_project, m_record.properties);
        warnOfProperties(m_record.name, unset);
        m_kept.properties = membersOf(m_record.properties, unset);
        const Obj::ProjectCodec* const codec = Obj::findProjectCodec(m_project.getTypeId());
        if (codec == nullptr)
            m_kept.record = std::move(m_record.record);
        else if (!m_record.record.isNull())
            codec->read(m_project, m_record.record);
    }

    KeptObject& keep(const projectfile::ObjectRecord& entry) { return m_kept.objects[entry.objectId]; }

    void warnOfProperties(const std::string& label, const std::vector<std::string>& names)
    {
        if (names.empty())
            return;
        QStringList list;
        for (const std::string& name : names)
            list << QString::fromStdString(name);
        m_warnings.push_back(tr("These properties of \"%1\" are kept, but cannot be set: %2.")
                                 .arg(QString::fromStdString(label), list.join(QStringLiteral(", ")))
                                 .toStdString());
    }

    void warnOfMissingClasses()
    {
        if (m_missingClasses.empty())
            return;
        QStringList list;
        for (const std::string& name : m_missingClasses)
            list << QString::fromStdString(name);
        m_warnings.push_back(tr("The module of these classes is missing: %1. Their objects are kept unchanged.")
                                 .arg(list.join(QStringLiteral(", ")))
                                 .toStdString());
    }

    Obj::Project& m_project;
    projectfile::ProjectRecord& m_record;
    KeptMembers& m_kept;
    std::vector<std::string>& m_warnings;
    std::vector<std::pair<Obj::ProjectObject*, const projectfile::ObjectRecord*>> m_objects;
    std::set<std::string> m_missingClasses;
};

} // namespace

void restoreProject(Obj::Project& project, projectfile::ProjectRecord& record, KeptMembers& kept,
                    std::vector<std::string>& warnings)
{
    Restoring(project, record, kept, warnings).run();
}

} // namespace desktop
