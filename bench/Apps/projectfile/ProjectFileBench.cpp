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

/// Compares opening and saving a project with parsing and writing the same text with plain jsoncpp, which only builds
/// and writes a tree of values. Memory has no limit, because one side holds a project and the other side a tree.
namespace {

using projectfile::ProjectRecord;
using vxbench::lazily;
using vxbench::timed;

constexpr double limit = 0.6;

/// Makes a project with `count` materials, which repeat the materials of the library.
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
    // The first call of text() makes the text before the clock starts.
    const auto open = [=] {
        text();
        return timed([&] { return projectfile::readProject(text()); });
    };
    // The time includes the destruction of the tree, because opening a project destroys its tree too.
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
    // Unlike parsing, opening also checks every value and makes every material.
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
