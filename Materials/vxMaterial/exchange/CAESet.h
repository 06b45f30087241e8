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

/// Returns the project kind in the member "proj_type" of a document; 0 if there is none. Does not throw.
VXCAE_EXPORT std::uint32_t readProjectKind(const Json::Value& document);

/// The numbers of the sections in CAESet::getSection; 2 is unused.
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

/// The exchange set of one project, which owns its sections. An analysis project exchanges all sections except the
/// materials; a material project exchanges only the materials. The exchange-set manager owns the whole set.
///
///     vxCAE::CAESet set(projectId, vxCAE::ProjectKind::Material);
///     set.materials->addMaterial(number, std::move(entry));
///     Json::Value document;
///     set.writeJson(document);
class VXCAE_EXPORT CAESet
{
public:
    /// Makes a set with all eight sections and their defaults.
    CAESet(std::uint32_t project, std::uint32_t kind);
    CAESet(const CAESet&) = delete;
    CAESet& operator=(const CAESet&) = delete;
    virtual ~CAESet();

    /// Returns a section by its SectionIndex; null for every other number. The set owns the section.
    CAEBase* getSection(int index) const;

    /// Writes "proj_type" and the sections that the project kind exchanges into `document`, an object or null. Writes
    /// nothing for an unknown kind.
    /// \throws Json::LogicError, std::out_of_range as the sections do; the document keeps the members written before
    void writeJson(Json::Value& document) const;

    /// Reads the sections that the set's own project kind exchanges. Ignores "proj_type" of the document.
    /// \throws Json::LogicError, Json::RuntimeError as the sections do; the sections read before keep their new values
    void readJson(const Json::Value& document);

    // Values of the system section, which must exist.
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

    // Values of sections that may be missing. If the section is missing, the arguments are unchanged.
    void getModalSettings(std::uint32_t& eigenvalues, double& tolerance, std::uint32_t& iterationLimit) const;
    void getSpectrumModes(std::uint32_t& first, std::uint32_t& last) const;
    void getLogFlags(bool& timeLog, bool& iterationLog) const;

    std::uint32_t getOutputFrequency() const; ///< 1 without a result section
    bool getMonitorTransient() const;         ///< false without a result section

    // Columns of the load-step table; empty without a solve section.
    std::vector<bool> getAutoTiming() const;
    std::vector<std::int32_t> getSubsteps() const;
    std::vector<double> getTimeIncrements() const;

    /// Returns "HEAT" for a thermal analysis, otherwise "Unknown".
    const char* getThermalLabel() const;
    /// Returns the solver's word for the analysis: "STATIC" or "NLSTATIC", "Dynamic" (also for a spectrum response),
    /// "Eigen", or "Unknown". A static analysis is nonlinear because of contact in the system or between domains, large
    /// deformation, or the material of a domain.
    const char* getAnalysisLabel() const;
    /// Returns 11 if the time integration is "Explicit", in this spelling; otherwise 1.
    int getSolverFamily() const;
    /// Returns whether contact in the system, large deformation or the material of a domain makes the analysis
    /// nonlinear.
    bool isNonlinear() const;
    /// Returns whether a domain has a creep or viscous material; true without a system section.
    bool hasCreepOrViscousMaterial() const;
    /// Returns whether there are contacts between domains; true without a system section.
    bool hasContacts() const;
    /// Calls CAESolve::getLoadStep. Without a solve section, the table has no steps.
    void getLoadStep(std::uint32_t step, std::int32_t& substeps, double& absoluteTolerance,
                     std::int32_t& iterationLimit) const;
    /// Return the names of mesh and solution: "p3o12" for object 12 of project 3; "error" if the section that contains
    /// the number of the object is missing.
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
