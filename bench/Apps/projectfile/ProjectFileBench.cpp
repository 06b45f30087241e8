#include "Contest.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/model/MatDBManager.h"

#include <json/reader.h>
#include <json/writer.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>

/// Opening and saving a project against what plain jsoncpp takes for the text alone: to parse it into a tree of values,
/// without looking at any, and to write that tree. The sides hold different things, a project with its materials or a
/// tree, so that memory is for information.
namespace {

using projectfile::ProjectRecord;
using vxbench::lazily;
using vxbench::timed;

constexpr double limit = 0.6;

/// A project of the library's materials, over and over.
ProjectRecord makeProject(std::uint32_t count)
{
    ProjectRecord project;
    project.name = "Bench";
    vxMat::MatDBManager library;
    library.initMaterialLibrary();
    const std::map<std::int32_t, std::unique_ptr<vxMat::MaterialBase>> sorted(
        std::make_move_iterator(library.materials.begin()), std::make_move_iterator(library.materials.end()));
    auto source = sorted.begin();
    for (std::uint32_t number = 1; number <= count; ++number) {
        auto material = std::make_unique<vxMat::CMaterial>();
        material->copyFrom(*source->second);
        if (++source == sorted.end())
            source = sorted.begin();
        projectfile::ObjectRecord object;
        object.objectId = number;
        object.className = "Mat::MaterialObject";
        object.internalName = "Material" + std::to_string(number);
        object.label = material->name;
        object.material = material.get();
        object.ownMaterial = std::move(material);
        Json::Value inDatabase;
        inDatabase["obj_id"] = Json::Value::UInt(number);
        inDatabase["class"] = object.className;
        inDatabase["name_internal"] = object.internalName;
        inDatabase["label"] = object.label;
        project.database["objects"]["object"].append(std::move(inDatabase));
        project.objects.push_back(std::move(object));
    }
    project.nextObjectId = std::uint64_t{count} + 1U;
    return project;
}

Json::Value parse(const std::string& text)
{
    Json::Value document;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    reader->parse(text.data(), text.data() + text.size(), &document, nullptr);
    return document;
}

void addContests(std::uint32_t count)
{
    const std::string of = " " + std::to_string(count) + " materials";
    const auto text = lazily([count] { return projectfile::writeProject(makeProject(count)); });
    const auto project = lazily([count] { return makeProject(count); });
    const auto document = lazily([text] { return parse(text()); });
    // The first call prepares it before the clock starts.
    const auto open = [=] {
        text();
        return timed([&] { return projectfile::readProject(text()); });
    };
    // The tree is destroyed within the time, as it is when a project is opened.
    const auto parsing = [=] {
        text();
        return timed([&] { return parse(text()).size(); });
    };
    const auto save = [=] {
        project();
        return timed([&] { return projectfile::writeProject(project()); });
    };
    const auto writing = [=] {
        document();
        return timed([&] { return Json::writeString(Json::StreamWriterBuilder(), document()); });
    };
    const auto both = [=] { return open() + save(); };
    const auto bothPlainly = [=] { return parsing() + writing(); };
    vxbench::addContest({"open and save" + of, both, bothPlainly, limit, false});
    // Opening checks every value and makes every material besides.
    vxbench::addContest({"open" + of, open, parsing, limit, false});
    vxbench::addContest({"save" + of, save, writing, limit, false});
}

} // namespace

int main(int argc, char** argv)
{
    for (const std::uint32_t count : {100U, 10000U})
        addContests(count);
    return vxbench::runContests(argc, argv);
}
