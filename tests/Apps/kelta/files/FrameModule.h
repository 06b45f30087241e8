#pragma once

#include "Gui/ViewFeeder.h"
#include "Obj/ClassRegistration.h"
#include "Obj/Project.h"
#include "Obj/ProjectObject.h"
#include "Obj/PropertyReference.h"

#include <string>
#include <vector>

namespace vxtest {

/// An object of a module that does not know materials: frames of beams. It has a reference, a choice and other
/// properties, and loads, which are not properties.
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

/// The tree node of a beam.
class BeamNode : public Gui::ViewFeederProjectObject
{
    OBJ_CLASS;

public:
    BeamNode();
    ~BeamNode() override;

    Obj::PropertyInteger lineWidth{1};
};

/// The project of beams. It has the name of a standard, which is not a property.
class Frame : public Obj::Project
{
    OBJ_CLASS;

public:
    Frame();
    ~Frame() override;

    Obj::PropertyString site;
    std::string standard;
};

/// Registers the classes and the codecs of their contents. A beam with a negative load cannot be read.
void registerFrames();

} // namespace vxtest
