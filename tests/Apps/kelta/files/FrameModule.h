#pragma once

#include "Gui/ViewFeeder.h"
#include "Obj/ClassRegistration.h"
#include "Obj/Project.h"
#include "Obj/ProjectObject.h"
#include "Obj/PropertyReference.h"

#include <string>
#include <vector>

namespace vxtest {

/// A module of its own, which knows nothing of materials: frames of beams. An object with a property of each type that
/// refers to or chooses something, and with loads, which are no properties.
class Beam : public Obj::ProjectObject
{
    OBJ_CLASS;

public:
    Beam();
    ~Beam() override;

    const char* get_viewfeeder_name() const override;
    void on_project_restored() override { ++restorations; }

    Obj::PropertyReal length{1.5};
    Obj::PropertyBool hollow;
    Obj::PropertyChoice profile{{"I", "U", "tube"}};
    Obj::PropertyReference support;
    std::vector<double> loads;
    int restorations = 0;
};

/// The node of a beam.
class BeamNode : public Gui::ViewFeederProjectObject
{
    OBJ_CLASS;

public:
    BeamNode();
    ~BeamNode() override;

    Obj::PropertyInteger lineWidth{1};
};

/// The project of beams, with the name of a standard, which is no property.
class Frame : public Obj::Project
{
    OBJ_CLASS;

public:
    Frame();
    ~Frame() override;

    Obj::PropertyString site;
    std::string standard;
};

/// Registers the classes and how their contents are carried. A beam with a negative load cannot be read.
void registerFrames();

} // namespace vxtest
