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
    register_property(propertyData, label, "Label", "Info", PropertyType::None, "");
    register_property(propertyData, length, "Length", "Size", PropertyType::None, "in m");
    register_property(propertyData, hollow, "Hollow", "Size", PropertyType::None, "");
    register_property(propertyData, profile, "Profile", "Size", PropertyType::None, "");
    register_property(propertyData, support, "Support", "Size", PropertyType::None, "");
}

Beam::~Beam() = default;

const char* Beam::get_viewfeeder_name() const
{
    return "vxtest::BeamNode";
}

BeamNode::BeamNode()
{
    register_property(propertyData, lineWidth, "LineWidth", "View", Obj::PropertyType::None, "in pixels");
}

BeamNode::~BeamNode() = default;

Frame::Frame()
{
    register_property(propertyData, site, "Site", "Info", Obj::PropertyType::None, "");
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
