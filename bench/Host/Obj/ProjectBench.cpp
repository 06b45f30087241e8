#include "Contest.h"

#include "Obj/Application.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <json/value.h>
#include <json/writer.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// Measures how times depend on the size of a project: the time per object for adding 10,000 and 100,000 objects, and
/// for finding one of them, is compared with the time for 1,000 objects. The record and the export of a project are
/// compared with hand-written code for the same documents with plain jsoncpp.
namespace {

using std::chrono::nanoseconds;

constexpr double growthLimit = 1.3;
constexpr double objectGrowthLimit = 1.5; // the tables of 100,000 objects are larger than the cache
constexpr double documentLimit = 1.15;
constexpr std::size_t fewest = 1000;
constexpr std::size_t most = 100000;

/// The simplest object of a project.
class Thing : public Obj::ProjectObject
{
public:
    Thing() { registerProperty(data, id, "ID", "Info", 1, "Identity of the tree object"); }
    static void* create() { return static_cast<Kelta::RootClass*>(new Thing); }
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
    Kelta::TypeInfo getTypeId() const override { return type; }
};

class ThingProject : public Obj::Project
{
public:
    static void* create() { return static_cast<Kelta::RootClass*>(new ThingProject); }
    static inline Kelta::TypeInfo type;
    Kelta::TypeInfo getTypeId() const override { return type; }
};

void registerClasses()
{
    Obj::initObj();
    initMat();
    Mat::registerRequests();
    // The application is created first, so that the objects of the contests are destroyed before it.
    Obj::Application::instance();
    Kelta::RootClass::initSubclass(Thing::type, "Bench::Thing", "Obj::ProjectObject", &Thing::create);
    Kelta::RootClass::initSubclass(ThingProject::type, "Bench::ThingProject", "Obj::Project", &ThingProject::create);
}

/// Creates a project. The destructor closes it.
class OpenProject
{
public:
    explicit OpenProject(const char* className)
        : m_project(Obj::Application::instance().createProject(className, "Bench"))
    {}
    OpenProject(const OpenProject&) = delete;
    OpenProject& operator=(const OpenProject&) = delete;
    ~OpenProject() { Obj::Application::instance().closeProject(*m_project); }

    Obj::Project* operator->() const { return m_project; }

private:
    Obj::Project* m_project;
};

// --- Adding and finding ---

/// Returns the processor time of `action`, including the time in the kernel. Elapsed time would not allow a comparison
/// of long actions with short ones, because long actions are interrupted more often.
template <typename Action>
nanoseconds processorTimeOf(Action action)
{
    const auto now = [] {
        timespec time = {};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
    };
    const nanoseconds begin = now();
    [[maybe_unused]] const auto result = action();
    return now() - begin;
}

/// Adds `most` objects in total to empty projects, `count` to each. Each side adds the same number of objects, so that
/// the ratio of the times is the ratio of the times per object. `putAside` keeps a full project alive. Otherwise the
/// next project would reuse its memory, while one large project must get its memory from the system, which takes longer
/// than adding the objects.
template <typename Add, typename PutAside>
nanoseconds addInPortions(const char* projectClass, std::size_t count, const Add& add, const PutAside& putAside)
{
    nanoseconds time{0};
    for (std::size_t done = 0; done < most; done += count) {
        Obj::Project& project = *Obj::Application::instance().createProject(projectClass, "Bench");
        time += processorTimeOf([&] {
            for (std::size_t i = 0; i < count; ++i)
                add(project);
            return 0;
        });
        putAside(project);
    }
    return time;
}

nanoseconds addThings(std::size_t count)
{
    std::vector<Obj::OwnedProject> full;
    return addInPortions(
        "Bench::ThingProject", count, [](Obj::Project& project) { project.add_object("Bench::Thing", "Thing"); },
        [&full](const Obj::Project& project) { full.push_back(Obj::Application::instance().takeProject(project)); });
}

nanoseconds addMaterials(std::size_t count)
{
    const nanoseconds time = addInPortions(
        "Mat::DocumentMaterial", count,
        [](const Obj::Project& project) {
            vxMsg::doCommand({Mat::Request::AddMaterial, project.get_name(), "Material", 0.0});
        },
        [](const Obj::Project& project) {
            vxMsg::runCommand(vxMsg::vxCommand::CloseProject, 1, {project.get_name()});
        });
    vxMsg::MessageProxy::instance().undoStack().clear();
    return time;
}

/// A project with objects, and the ids and names of the objects in random order.
struct Searched
{
    explicit Searched(std::size_t count) : project("Bench::ThingProject")
    {
        for (std::size_t i = 0; i < count; ++i)
            project->add_object("Bench::Thing", "Thing");
        std::mt19937 random(1);
        const std::vector<Obj::ProjectObject*> objects = project->getObjects();
        for (std::size_t i = 0; i < most; ++i) {
            const Obj::ProjectObject& object = *objects[random() % objects.size()];
            ids.push_back(object.getObjectId());
            names.emplace_back(object.get_name_in_project());
        }
    }

    OpenProject project;
    std::vector<std::uint32_t> ids;
    std::vector<std::string> names;
};

template <typename Keys>
nanoseconds findAll(const Searched& searched, const Keys& keys)
{
    return processorTimeOf([&] {
        std::size_t found = 0;
        for (const auto& key : keys)
            found += searched.project->get_object(key) != nullptr ? 1 : 0;
        return found;
    });
}

// --- Record and export ---

/// A project with materials of structural steel.
struct Steels
{
    Steels() : project("Mat::DocumentMaterial")
    {
        for (std::size_t i = 0; i < most; ++i)
            static_cast<Mat::MaterialObject*>(project->add_object("Mat::MaterialObject", "Material"))
                ->initCMaterial(vxMat::eMaterialType::StructuralSteel);
    }

    OpenProject project;
};

Json::Value recordByHand(const Steels& steels)
{
    Json::Value record;
    record["proj_tag"] = "Material";
    record["proj_id"] = steels.project->getProjectId();
    record["physics_type"] = "Material";
    Json::Value objects(Json::arrayValue);
    for (const Obj::ProjectObject* const object : steels.project->getObjects()) {
        Json::Value json;
        json["obj_id"] = object->getObjectId();
        json["class"] = "Mat::MaterialObject";
        json["name_internal"] = object->get_name_in_project();
        json["label"] = object->label.getValue();
        objects.append(std::move(json));
    }
    record["objects"]["object"] = std::move(objects);
    return record;
}

Json::Value documentByHand(const Steels& steels)
{
    Json::Value materials(Json::arrayValue);
    for (const Obj::ProjectObject* const object : steels.project->getObjects()) {
        Json::Value properties(Json::arrayValue);
        for (const auto& [key, property] : static_cast<const Mat::MaterialObject*>(object)->getCMaterial()->properties)
        {
            Json::Value json;
            json["prop_type"] = key;
            json["prop_key"] = property->key;
            json["prop_name"] = property->name;
            json["prop_value"] = property->value;
            properties.append(std::move(json));
        }
        Json::Value json;
        json["mat_id"] = object->getObjectId();
        json["mat_name"] = object->label.getValue();
        json["Props"] = std::move(properties);
        materials.append(std::move(json));
    }
    Json::Value document;
    document["proj_type"] = 2;
    document["material"] = std::move(materials);
    return document;
}

std::string placeFor(const char* name)
{
    const char* const folder = std::getenv("TMPDIR"); // NOLINT(concurrency-mt-unsafe): no other thread sets it
    return std::string(folder != nullptr ? folder : "/tmp") + "/" + name;
}

/// Writes the document to a file with plain jsoncpp. Removes the file after the clock has stopped.
nanoseconds exportByHand(const Steels& steels)
{
    const std::string path = placeFor("project-bench-by-hand.json");
    const nanoseconds time = processorTimeOf([&] {
        std::ofstream file(path);
        file << Json::StyledWriter().write(documentByHand(steels));
        return 0;
    });
    std::remove(path.c_str());
    return time;
}

nanoseconds exportByProject(const Steels& steels)
{
    const std::string path = placeFor("project-bench.json");
    auto* const project = static_cast<Mat::DocumentMaterial*>(steels.project.operator->());
    const nanoseconds time = processorTimeOf([&] { return project->exportToFile(path, ' ', ' ', ' '); });
    std::remove(path.c_str());
    return time;
}

// --- The contests ---

/// Returns a function that makes an object in its first call and returns it in every call, so that a process that
/// measures memory makes only the objects that it needs.
template <class Made, class... Arguments>
auto lazily(Arguments... arguments)
{
    return [arguments..., made = std::make_shared<std::unique_ptr<Made>>()]() -> const Made& {
        if (!*made)
            *made = std::make_unique<Made>(arguments...);
        return **made;
    };
}

void addGrowthContests(std::size_t count)
{
    const std::string than = " " + std::to_string(count) + ", not 1000 at once";
    vxbench::addContest({"add objects," + than, [count] { return addThings(count); }, [] { return addThings(fewest); },
                         objectGrowthLimit, false});
    vxbench::addContest({"add materials by requests," + than, [count] { return addMaterials(count); },
                         [] { return addMaterials(fewest); }, growthLimit, false});
    const auto many = lazily<Searched>(count);
    const auto few = lazily<Searched>(fewest);
    vxbench::addContest({"find by id among" + than, [=] { return findAll(many(), many().ids); },
                         [=] { return findAll(few(), few().ids); }, 0.0});
    vxbench::addContest({"find by name among" + than, [=] { return findAll(many(), many().names); },
                         [=] { return findAll(few(), few().names); }, 0.0});
}

void addDocumentContests()
{
    const auto steels = lazily<Steels>();
    vxbench::addContest({"record of 100000 materials",
                         [=] {
                             return processorTimeOf([&] {
                                 Json::Value record;
                                 steels().project->save_jsonDB(record);
                                 return record;
                             });
                         },
                         [=] { return processorTimeOf([&] { return recordByHand(steels()); }); }, documentLimit});
    vxbench::addContest({"export of 100000 materials", [=] { return exportByProject(steels()); },
                         [=] { return exportByHand(steels()); }, documentLimit});
}

} // namespace

int main(int argc, char** argv)
{
    registerClasses();
    for (const std::size_t count : {std::size_t{10000}, most})
        addGrowthContests(count);
    addDocumentContests();
    return vxbench::runContests(argc, argv);
}
