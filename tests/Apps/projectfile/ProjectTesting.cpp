#include "ProjectTesting.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <utility>

namespace vxtest {

namespace {

using vxMat::MaterialBase;
using vxMat::MaterialProperty;

bool isSame(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

void expectSame(const MaterialProperty& a, const MaterialProperty& b)
{
    EXPECT_EQ(a.id, b.id);
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.key, b.key);
    EXPECT_TRUE(isSame(a.value, b.value)) << a.value << " and " << b.value;
    EXPECT_EQ(a.text, b.text);
    ASSERT_EQ(a.values.size(), b.values.size());
    for (std::size_t i = 0; i < a.values.size(); ++i)
        EXPECT_TRUE(isSame(a.values[i], b.values[i])) << a.values[i] << " and " << b.values[i];
    EXPECT_EQ(a.description, b.description);
    EXPECT_EQ(a.unit, b.unit);
    EXPECT_EQ(a.category, b.category);
}

std::unique_ptr<MaterialProperty> makeDensity(double value)
{
    auto property = std::make_unique<MaterialProperty>(4, "Density", "rho", value);
    property->unit = "kg/m3";
    property->category = vxMat::ePropertyCategory::Basic;
    return property;
}

std::unique_ptr<MaterialBase> makeMaterial(const std::string& name)
{
    auto material = std::make_unique<MaterialBase>();
    material->name = name;
    return material;
}

} // namespace

void expectSame(const MaterialBase& a, const MaterialBase& b)
{
    EXPECT_EQ(a.id, b.id);
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.libraryGroup, b.libraryGroup);
    ASSERT_EQ(a.properties.size(), b.properties.size());
    for (const auto& [slot, property] : a.properties) {
        SCOPED_TRACE(slot);
        ASSERT_NE(b.findProperty(slot), nullptr);
        expectSame(*property, *b.findProperty(slot));
    }
}

// Compares the texts, because jsoncpp distinguishes an unsigned number from a signed number of the same value.
void expectSame(const projectfile::ProjectRecord& a, const projectfile::ProjectRecord& b)
{
    EXPECT_EQ(a.className, b.className);
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.nextObjectId, b.nextObjectId);
    EXPECT_EQ(a.properties.toStyledString(), b.properties.toStyledString());
    EXPECT_EQ(a.record.toStyledString(), b.record.toStyledString());
    EXPECT_EQ(a.database.toStyledString(), b.database.toStyledString());
    EXPECT_EQ(a.recoveredFile, b.recoveredFile);
    EXPECT_EQ(a.settings, b.settings);
    EXPECT_EQ(a.unappliedEdits.toStyledString(), b.unappliedEdits.toStyledString());
    EXPECT_EQ(a.further.toStyledString(), b.further.toStyledString());
    ASSERT_EQ(a.objects.size(), b.objects.size());
    for (std::size_t i = 0; i < a.objects.size(); ++i) {
        SCOPED_TRACE(i);
        const auto& one = a.objects[i];
        const auto& other = b.objects[i];
        EXPECT_EQ(one.objectId, other.objectId);
        EXPECT_EQ(one.className, other.className);
        EXPECT_EQ(one.internalName, other.internalName);
        EXPECT_EQ(one.label, other.label);
        EXPECT_EQ(one.suppressed, other.suppressed);
        EXPECT_EQ(one.colour, other.colour);
        EXPECT_EQ(one.properties.toStyledString(), other.properties.toStyledString());
        EXPECT_EQ(one.node.toStyledString(), other.node.toStyledString());
        EXPECT_EQ(one.links, other.links);
        EXPECT_EQ(one.settings, other.settings);
        EXPECT_EQ(one.content.toStyledString(), other.content.toStyledString());
        EXPECT_EQ(one.further.toStyledString(), other.further.toStyledString());
        ASSERT_EQ(one.material == nullptr, other.material == nullptr);
        if (one.material != nullptr)
            expectSame(*one.material, *other.material);
    }
}

projectfile::ObjectRecord& addMaterial(projectfile::ProjectRecord& project, std::unique_ptr<MaterialBase> material)
{
    projectfile::ObjectRecord& object = project.objects.emplace_back();
    object.objectId = static_cast<std::uint32_t>(project.nextObjectId++);
    object.className = "Mat::MaterialObject";
    object.internalName = "Material" + std::to_string(object.objectId);
    object.label = material->name;
    object.material = material.get();
    object.ownMaterial = std::move(material);
    Json::Value inDatabase;
    inDatabase["obj_id"] = Json::Value::UInt(object.objectId);
    inDatabase["class"] = object.className;
    inDatabase["name_internal"] = object.internalName;
    inDatabase["label"] = object.label;
    project.database["proj_tag"] = "Material";
    project.database["objects"]["object"].append(inDatabase);
    return object;
}

projectfile::ObjectRecord& addOther(projectfile::ProjectRecord& project, const std::string& className,
                                    const std::string& label)
{
    projectfile::ObjectRecord& object = project.objects.emplace_back();
    object.objectId = static_cast<std::uint32_t>(project.nextObjectId++);
    object.className = className;
    object.internalName = "Other" + std::to_string(object.objectId);
    object.label = label;
    return object;
}

projectfile::ProjectRecord makeLibraryProject()
{
    vxMat::MatDBManager library;
    library.initMaterialLibrary();
    // The order in the library differs between standard libraries.
    std::map<std::int32_t, std::unique_ptr<MaterialBase>> sorted;
    for (auto& [type, material] : library.materials)
        sorted[type] = std::move(material);
    projectfile::ProjectRecord project;
    project.name = "Library";
    for (auto& [type, material] : sorted)
        addMaterial(project, std::move(material));
    return project;
}

projectfile::ProjectRecord makeSmallProject()
{
    projectfile::ProjectRecord project;
    project.name = "Small";
    auto steel = makeMaterial("Steel");
    steel->setProperty(4, makeDensity(7850.0));
    steel->setProperty(401, makeDensity(-0.0));
    addMaterial(project, std::move(steel)).colour = {{0.5F, 0.25F, 0.0F, 1.0F}};
    addMaterial(project, makeMaterial("\xE9\x92\xA2")).suppressed = true;
    return project;
}

projectfile::ProjectRecord makeMixedProject()
{
    projectfile::ProjectRecord project = makeSmallProject();
    project.className = "Stub::Project";
    project.properties["Temperature"] = 293.15;
    project.record["runs"][0] = 7;
    project.objects[0].properties["Batch"] = "B 12";
    project.objects[0].node["Expanded"] = true;
    projectfile::ObjectRecord& probe = addOther(project, "Stub::Probe", "Probe A");
    probe.properties["Depth"] = 0.5;
    probe.properties["Colour"][0] = 1;
    probe.node["Expanded"] = false;
    probe.content["samples"][0] = 1.5;
    projectfile::ObjectRecord& group = addOther(project, "Obj::ProjectObjectGroup", "Group");
    group.suppressed = true;
    group.links = {3, 1};
    return project;
}

std::unique_ptr<MaterialBase> Dice::makeMaterial()
{
    auto material = std::make_unique<MaterialBase>();
    material->id = whole();
    material->name = text();
    material->libraryGroup = whole();
    for (int i = upTo(8); i > 0; --i)
        material->setProperty(whole(), makeProperty());
    return material;
}

projectfile::ProjectRecord Dice::makeProject(int materials)
{
    projectfile::ProjectRecord project;
    project.name = text();
    for (int i = 0; i < materials; ++i) {
        project.nextObjectId += static_cast<std::uint64_t>(upTo(3)); // numbers of objects that were deleted
        auto& object = addMaterial(project, makeMaterial());
        object.suppressed = upTo(1) == 1;
        const auto part = [this] { return std::uniform_real_distribution<float>(0.0F, 1.0F)(m_engine); };
        if (upTo(1) == 1)
            object.colour = {{part(), part(), part(), part()}};
    }
    return project;
}

projectfile::ProjectRecord Dice::makeMixedProject(int objects)
{
    projectfile::ProjectRecord project = makeProject(0);
    if (upTo(1) == 1)
        project.className = "Stub::Project";
    project.properties = members();
    project.record = anything(3);
    for (int i = 0; i < objects; ++i) {
        const bool isMaterial = upTo(1) == 1;
        auto& object = isMaterial ? addMaterial(project, makeMaterial()) : addOther(project, "Stub::Object", text());
        object.suppressed = upTo(1) == 1;
        object.properties = members();
        object.node = members();
        if (!isMaterial)
            object.content = anything(4);
        if (upTo(3) == 0)
            object.further["object"]["later"] = anything(2);
        for (std::uint32_t other = 1; other < object.objectId; ++other) {
            if (upTo(3) == 0)
                object.links.push_back(other);
        }
        if (upTo(2) == 0)
            object.settings[text()] = text();
    }
    if (upTo(1) == 1)
        project.further["later"] = anything(2);
    if (upTo(1) == 0)
        project.settings[text()] = text();
    return project;
}

Json::Value Dice::members()
{
    Json::Value made;
    for (int i = upTo(3); i > 0; --i)
        made[text()] = anything(2);
    return made;
}

Json::Value Dice::anything(int depth) // NOLINT(misc-no-recursion): no deeper than `depth`
{
    switch (upTo(depth > 0 ? 6 : 4)) {
    case 0:
        return {};
    case 1:
        return upTo(1) == 1;
    case 2:
        return whole();
    case 3: {
        const double made = number();
        return std::isfinite(made) ? Json::Value(made) : Json::Value("none");
    }
    case 4:
        return text();
    case 5: {
        Json::Value array(Json::arrayValue);
        for (int i = upTo(3); i > 0; --i)
            array.append(anything(depth - 1));
        return array;
    }
    default: {
        Json::Value object(Json::objectValue);
        for (int i = upTo(3); i > 0; --i)
            object[text()] = anything(depth - 1);
        return object;
    }
    }
}

int Dice::upTo(int most)
{
    return std::uniform_int_distribution<int>(0, most)(m_engine);
}

std::int32_t Dice::whole()
{
    using Limits = std::numeric_limits<std::int32_t>;
    return std::uniform_int_distribution<std::int32_t>(Limits::min(), Limits::max())(m_engine);
}

double Dice::number()
{
    using Limits = std::numeric_limits<double>;
    const double special[] = {0.0,
                              -0.0,
                              Limits::max(),
                              Limits::lowest(),
                              Limits::min(),
                              Limits::denorm_min(),
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::quiet_NaN(),
                              0.1,
                              9007199254740993.0,
                              18446744073709551616.0,
                              -9223372036854775808.0,
                              1e22,
                              1e23};
    const int kind = upTo(2);
    if (kind == 0)
        return special[upTo(14)];
    if (kind == 1)
        return std::ldexp(std::uniform_real_distribution<double>(-1.0, 1.0)(m_engine), upTo(600) - 300);
    // Any pattern of bits: mostly far from 1, some subnormal, some not a number.
    const std::uint64_t bits = std::uniform_int_distribution<std::uint64_t>()(m_engine);
    double number = 0.0;
    static_assert(sizeof number == sizeof bits);
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

std::string Dice::text()
{
    static const std::string pieces[] = {"a",
                                         "\"",
                                         "\\",
                                         "\n",
                                         "\r\n",
                                         "\t",
                                         std::string(1, '\0'),
                                         "\x01",
                                         "\x1f",
                                         "\x7f",
                                         "/",
                                         " ",
                                         "\\u00e4",
                                         "\xC2\x80",          // U+0080, a control character too
                                         "\xC3\xA4",          // a with two dots
                                         "\xE2\x80\xA8",      // U+2028, the end of a line in some languages
                                         "\xE2\x82\xAC",      // the sign of the euro
                                         "\xE9\x92\xA2",      // steel in Chinese
                                         "\xEF\xBB\xBF",      // the byte order mark
                                         "\xEF\xBF\xBF",      // U+FFFF, which is not a character
                                         "\xF0\x9F\x94\xA9",  // nut and bolt
                                         "\xF4\x8F\xBF\xBF"}; // the last of Unicode
    constexpr int last = static_cast<int>(std::size(pieces)) - 1;
    std::string made;
    for (int i = upTo(12); i > 0; --i)
        made += pieces[upTo(last)];
    return made;
}

std::unique_ptr<MaterialProperty> Dice::makeProperty()
{
    auto property = std::make_unique<MaterialProperty>();
    property->id = whole();
    property->name = text();
    property->key = text();
    property->value = number();
    property->text = text();
    for (int i = upTo(5); i > 0; --i)
        property->values.push_back(number());
    property->description = text();
    property->unit = text();
    property->category = static_cast<vxMat::ePropertyCategory>(upTo(9));
    return property;
}

} // namespace vxtest
