#include "FrameModule.h"

#include "Obj/ContentCodec.h"
#include "Obj/PropertyType.h"

#include <stdexcept>
#include <utility>

namespace vxtest {

OBJ_REGISTER_CLASS(vxtest::Beam, Obj::ProjectObject)
OBJ_REGISTER_CLASS(vxtest::BeamNode, Gui::ViewFeederProjectObject)
OBJ_REGISTER_CLASS(vxtest::Frame, Obj::Project)

Beam::Beam()
{
    using Obj::PropertyType;
    registerProperty(propertyData, label, "Label", "Info", PropertyType::none, "");
    registerProperty(propertyData, length, "Length", "Size", PropertyType::none, "in m");
    registerProperty(propertyData, hollow, "Hollow", "Size", PropertyType::none, "");
    registerProperty(propertyData, profile, "Profile", "Size", PropertyType::none, "");
    registerProperty(propertyData, support, "Support", "Size", PropertyType::none, "");
}

Beam::~Beam() = default;

const char* Beam::get_viewfeeder_name() const
{
    return "vxtest::BeamNode";
}

BeamNode::BeamNode()
{
    registerProperty(propertyData, lineWidth, "LineWidth", "View", Obj::PropertyType::none, "in pixels");
}

BeamNode::~BeamNode() = default;

Frame::Frame()
{
    registerProperty(propertyData, site, "Site", "Info", Obj::PropertyType::none, "");
}

Frame::~Frame() = default;

namespace {

Json::Value writeLoads(const Obj::ProjectObject& object)
{
    Json::Value content(Json::objectValue);
    for (const double load : static_cast<const Beam&>(object).loads)
        content["loads"].append(load);
    return content;
}

void readLoads(Obj::ProjectObject& object, const Json::Value& content)
{
    std::vector<double> loads;
    for (const Json::Value& load : content["loads"]) {
        if (load.asDouble() < 0)
            throw std::runtime_error("a load is negative");
        loads.push_back(load.asDouble());
    }
    static_cast<Beam&>(object).loads = std::move(loads);
}

Json::Value writeStandard(const Obj::Project& project)
{
    Json::Value record;
    record["standard"] = static_cast<const Frame&>(project).standard;
    return record;
}

void readStandard(Obj::Project& project, const Json::Value& record)
{
    static_cast<Frame&>(project).standard = record["standard"].asString();
}

} // namespace

void registerFrames()
{
    Beam::init();
    BeamNode::init();
    Frame::init();
    Obj::registerContentCodec("vxtest::Beam", {writeLoads, readLoads});
    Obj::registerProjectCodec("vxtest::Frame", {writeStandard, readStandard});
}

} // namespace vxtest
