#pragma once

#include "vxMaterial/exchange/CAEBCS.h"
#include "vxMaterial/exchange/CAEDCS.h"
#include "vxMaterial/exchange/CAEICS.h"
#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/exchange/CAEMesh.h"
#include "vxMaterial/exchange/CAEResult.h"
#include "vxMaterial/exchange/CAESolve.h"
#include "vxMaterial/exchange/CAESystem.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vxCAE {

/// The project kind that a document says it is for in "proj_type"; 0 when it says none. Nothing is thrown.
VXCAE_EXPORT std::uint32_t readProjectKind(const Json::Value& document);

/// The numbers by which CAESet::getSection knows the sections; 2 is not taken.
struct SectionIndex
{
    enum : int
    {
        System = 1,
        Mesh = 3,
        BoundaryConditions = 4,
        DomainConditions = 5,
        InitialConditions = 6,
        Materials = 7,
        Solve = 8,
        Result = 9,
    };
};

/// The exchange set of one project: all sections, of which an analysis project exchanges all but the materials and a
/// material project the materials alone. It owns its sections, and passes with them to the exchange-set manager.
///
///     vxCAE::CAESet set(projectId, vxCAE::ProjectKind::Material);
///     set.materials->addMaterial(number, std::move(entry));
///     Json::Value document;
///     set.writeJson(document);
class VXCAE_EXPORT CAESet
{
public:
    /// A set with all eight sections as they are by default.
    CAESet(std::uint32_t project, std::uint32_t kind);
    CAESet(const CAESet&) = delete;
    CAESet& operator=(const CAESet&) = delete;
    virtual ~CAESet();

    /// A section by its SectionIndex, which the set keeps; null for every other number.
    CAEBase* getSection(int index) const;

    /// Writes "proj_type" and the sections that the project kind exchanges into `document`, an object or null; for an
    /// unknown kind nothing.
    /// \throws Json::LogicError, std::out_of_range as the sections do; the document keeps what was written before
    void writeJson(Json::Value& document) const;

    /// Reads the sections that the set's own project kind exchanges, whatever "proj_type" the document has.
    /// \throws Json::LogicError, Json::RuntimeError as the sections do; those read before stay read
    void readJson(const Json::Value& document);

    // What the system section says; it must be there.
    struct PhysicsAndAnalysis
    {
        std::int32_t physics;
        std::int32_t analysis;
    };
    PhysicsAndAnalysis getPhysicsAndAnalysis() const;
    std::int32_t getSolverForm() const;
    std::int32_t getDeformType() const;
    std::int32_t getDimension() const;
    bool getCalculateStress() const;

    // What a section says that may be missing; then the arguments stay as they are.
    void getModalSettings(std::uint32_t& eigenvalues, double& tolerance, std::uint32_t& iterationLimit) const;
    void getSpectrumModes(std::uint32_t& first, std::uint32_t& last) const;
    void getLogFlags(bool& timeLog, bool& iterationLog) const;

    std::uint32_t getOutputFrequency() const; ///< 1 without a result section
    bool getMonitorTransient() const;         ///< false without a result section

    // Columns of the load-step table; empty without a solve section.
    std::vector<bool> getAutoTiming() const;
    std::vector<std::int32_t> getSubsteps() const;
    std::vector<double> getTimeIncrements() const;

    /// "HEAT" for a thermal analysis, else "Unknown".
    const char* getThermalLabel() const;
    /// The solver's word for the analysis: "STATIC" or "NLSTATIC", "Dynamic" (also of a spectrum response), "Eigen",
    /// or "Unknown". A static analysis is nonlinear by contact in the system or between domains, by large
    /// deformation, or by a domain's material.
    const char* getAnalysisLabel() const;
    /// 11 for time integration "Explicit", spelled exactly so; else 1.
    int getSolverFamily() const;
    /// Whether contact in the system, large deformation or a domain's material makes the analysis nonlinear.
    bool isNonlinear() const;
    /// Whether a domain has a creep or viscous material; true without a system section.
    bool hasCreepOrViscousMaterial() const;
    /// Whether there are contacts between domains; true without a system section.
    bool hasContacts() const;
    /// CAESolve::getLoadStep; without a solve section as for a step that the table does not have.
    void getLoadStep(std::uint32_t step, std::int32_t& substeps, double& absoluteTolerance,
                     std::int32_t& iterationLimit) const;
    /// The names under which mesh and solution are kept: "p3o12" for object 12 of project 3; "error" when the section
    /// that knows the object is missing.
    std::string getMeshTag() const;
    std::string getSolutionTag() const;

    std::unique_ptr<CAESystem> system;
    std::unique_ptr<CAEMaterials> materials;
    std::unique_ptr<CAEMesh> mesh;
    std::unique_ptr<CAEBCS> boundaryConditions;
    std::unique_ptr<CAEDCS> domainConditions;
    std::unique_ptr<CAEICS> initialConditions;
    std::unique_ptr<CAESolve> solve;
    std::unique_ptr<CAEResult> result;
    std::uint32_t projectId;
    std::uint32_t projectKind; ///< ProjectKind

private:
    bool hasNonlinearDomain() const;
    std::vector<CAEBase*> exchangedSections() const;
    std::string objectTag(std::uint32_t objectId) const;
};

} // namespace vxCAE
