#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <cstdint>

/// The exchange set: the document that passes between the user interface and the solver.
namespace vxCAE {

/// What a document is for: the values of "proj_type".
struct ProjectKind
{
    enum : std::uint32_t
    {
        Analysis = 1,
        Material = 2
    };
};

/// What is solved: the values of "physics_type".
struct PhysicsType
{
    enum : std::int32_t
    {
        NotSet = 0,
        Structural = 1,
        Thermal = 2,
        Electromagnetic = 3,
        Acoustic = 4,
        Fluids = 5
    };
};

/// How it is solved in time: the values of "analysis_type".
struct AnalysisType
{
    enum : std::int32_t
    {
        NotSet = 0,
        Static = 1,
        Dynamic = 2,
        Modal = 3,
        SpectrumResponse = 4
    };
};

/// One section of the exchange set. It writes itself into, and reads itself from, one JSON object that all sections
/// share, each under members of its own.
///
/// Keys in documents point into this library, which must stay loaded as long as they live.
///
/// Readers do not ask whether a member is there: a missing one reads as 0, 0.0, false or the empty text, a missing
/// array as one without elements. They leave the document as it is.
class VXCAE_EXPORT CAEBase
{
public:
    CAEBase() = default;
    virtual ~CAEBase();

    /// The name of the section's class, "CAEMaterials".
    virtual const char* typeName() const = 0;

    /// Adds the section to `document`, an object or null. Members of other sections stay.
    /// \throws Json::LogicError when `document` is of another kind; std::out_of_range as CAESolve::writeJson says.
    /// The document keeps what was written before.
    virtual void writeJson(Json::Value& document) const = 0;

    /// Fills the section from `document`. A section that is one object of the document is read whole or not at all;
    /// one that is a list keeps the elements before the one that cannot be read.
    /// \throws Json::LogicError when a value cannot be converted: a text where a number belongs, a negative number
    /// where an unsigned one does, an array where an object does; Json::RuntimeError as CAESolve::readJson says
    virtual void readJson(const Json::Value& document) = 0;

protected:
    CAEBase(const CAEBase&) = default;
    CAEBase& operator=(const CAEBase&) = default;
    CAEBase(CAEBase&&) = default;
    CAEBase& operator=(CAEBase&&) = default;
};

} // namespace vxCAE
