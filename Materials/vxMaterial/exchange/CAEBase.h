#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <cstdint>

/// The exchange set: the document that the user interface and the solver exchange.
namespace vxCAE {

/// The purpose of a document: the values of "proj_type".
struct ProjectKind
{
    enum : std::uint32_t
    {
        Analysis = 1,
        Material = 2
    };
};

/// The physics of an analysis: the values of "physics_type".
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

/// The kind of analysis: the values of "analysis_type".
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

/// One section of the exchange set. All sections share one JSON object. Each section has its own members in this
/// object.
///
/// The keys in written documents are constants of this library, which must stay loaded as long as the documents exist.
///
/// A missing member is read as 0, 0.0, false or the empty text, a missing array as an empty one. Reading does not
/// change the document.
class VXCAE_EXPORT CAEBase
{
public:
    CAEBase() = default;
    virtual ~CAEBase();

    /// Returns the name of the section's class, "CAEMaterials".
    virtual const char* typeName() const = 0;

    /// Adds the section to `document`, an object or null. Members of other sections are unchanged.
    /// \throws Json::LogicError if `document` has another kind; std::out_of_range as in CAESolve::writeJson. The
    /// document keeps the members written before.
    virtual void writeJson(Json::Value& document) const = 0;

    /// Fills the section from `document`. If a value cannot be read, a section that is one object stays unchanged, and
    /// a section that is a list keeps the elements before that value.
    /// \throws Json::LogicError if a value cannot be converted: a text in place of a number, a negative number in place
    /// of an unsigned one, an array in place of an object; Json::RuntimeError as in CAESolve::readJson
    virtual void readJson(const Json::Value& document) = 0;

protected:
    CAEBase(const CAEBase&) = default;
    CAEBase& operator=(const CAEBase&) = default;
    CAEBase(CAEBase&&) = default;
    CAEBase& operator=(CAEBase&&) = default;
};

} // namespace vxCAE
