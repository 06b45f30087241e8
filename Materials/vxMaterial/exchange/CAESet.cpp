#include "vxMaterial/exchange/CAESet.h"

namespace vxCAE {

std::uint32_t readProjectKind(const Json::Value& document)
{
    if (!document.isObject() || !document["proj_type"].isUInt())
        return 0;
    return document["proj_type"].asUInt();
}

CAESet::CAESet(std::uint32_t project, std::uint32_t kind) : projectId(project), projectKind(kind)
{
    system = std::make_unique<CAESystem>();
    mesh = std::make_unique<CAEMesh>();
    boundaryConditions = std::make_unique<CAEBCS>();
    domainConditions = std::make_unique<CAEDCS>();
    initialConditions = std::make_unique<CAEICS>();
    materials = std::make_unique<CAEMaterials>();
    solve = std::make_unique<CAESolve>();
    result = std::make_unique<CAEResult>();
}

CAESet::~CAESet()
{
    // The order of construction differs from the order in which members are destroyed.
    system.reset();
    mesh.reset();
    boundaryConditions.reset();
    domainConditions.reset();
    initialConditions.reset();
    materials.reset();
    solve.reset();
    result.reset();
}

CAEBase* CAESet::getSection(int index) const
{
    switch (index) {
    case SectionIndex::System:
        return system.get();
    case SectionIndex::Mesh:
        return mesh.get();
    case SectionIndex::BoundaryConditions:
        return boundaryConditions.get();
    case SectionIndex::DomainConditions:
        return domainConditions.get();
    case SectionIndex::InitialConditions:
        return initialConditions.get();
    case SectionIndex::Materials:
        return materials.get();
    case SectionIndex::Solve:
        return solve.get();
    case SectionIndex::Result:
        return result.get();
    default:
        return nullptr;
    }
}

std::vector<CAEBase*> CAESet::exchangedSections() const
{
    switch (projectKind) {
    case ProjectKind::Analysis:
        return {system.get(),
                domainConditions.get(),
                mesh.get(),
                initialConditions.get(),
                boundaryConditions.get(),
                solve.get(),
                result.get()};
    case ProjectKind::Material:
        return {materials.get()};
    default:
        return {};
    }
}

void CAESet::writeJson(Json::Value& document) const
{
    const auto sections = exchangedSections();
    if (sections.empty())
        return;
    document["proj_type"] = static_cast<Json::Int>(projectKind);
    for (const CAEBase* const section : sections) {
        if (section != nullptr)
            section->writeJson(document);
    }
}

void CAESet::readJson(const Json::Value& document)
{
    for (CAEBase* const section : exchangedSections()) {
        if (section != nullptr)
            section->readJson(document);
    }
}

CAESet::PhysicsAndAnalysis CAESet::getPhysicsAndAnalysis() const
{
    return {system->physics_type, system->analysis_type};
}

std::int32_t CAESet::getSolverForm() const
{
    return system->solver_form;
}

std::int32_t CAESet::getDeformType() const
{
    return system->deform_type;
}

std::int32_t CAESet::getDimension() const
{
    return system->dim;
}

bool CAESet::getCalculateStress() const
{
    return system->cal_stress;
}

void CAESet::getModalSettings(std::uint32_t& eigenvalues, double& tolerance, std::uint32_t& iterationLimit) const
{
    if (!system)
        return;
    eigenvalues = system->n_eigens;
    tolerance = system->lcz_tol;
    iterationLimit = system->lcz_max;
}

void CAESet::getSpectrumModes(std::uint32_t& first, std::uint32_t& last) const
{
    if (!system)
        return;
    first = system->start_mode;
    last = system->end_mode;
}

void CAESet::getLogFlags(bool& timeLog, bool& iterationLog) const
{
    if (!result)
        return;
    timeLog = result->output_time_log;
    iterationLog = result->output_iter_log;
}

std::uint32_t CAESet::getOutputFrequency() const
{
    return result ? result->output_freq : 1;
}

bool CAESet::getMonitorTransient() const
{
    return result && result->monitor_trans;
}

std::vector<bool> CAESet::getAutoTiming() const
{
    return solve ? solve->auto_timing : std::vector<bool>();
}

std::vector<std::int32_t> CAESet::getSubsteps() const
{
    return solve ? solve->n_substeps : std::vector<std::int32_t>();
}

std::vector<double> CAESet::getTimeIncrements() const
{
    return solve ? solve->time_inc : std::vector<double>();
}

const char* CAESet::getThermalLabel() const
{
    return system && system->physics_type == PhysicsType::Thermal ? "HEAT" : "Unknown";
}

const char* CAESet::getAnalysisLabel() const
{
    if (!system)
        return "Unknown";
    switch (system->analysis_type) {
    case AnalysisType::Static:
        return isNonlinear() || hasContacts() ? "NLSTATIC" : "STATIC";
    case AnalysisType::Dynamic:
    case AnalysisType::SpectrumResponse:
        return "Dynamic";
    case AnalysisType::Modal:
        return "Eigen";
    default:
        return "Unknown";
    }
}

int CAESet::getSolverFamily() const
{
    constexpr int implicitFamily = 1;
    constexpr int explicitFamily = 11;
    return system && system->time_inte == "Explicit" ? explicitFamily : implicitFamily;
}

bool CAESet::isNonlinear() const
{
    return system && (system->isNonlinear() || hasNonlinearDomain());
}

bool CAESet::hasNonlinearDomain() const
{
    return domainConditions && domainConditions->hasNonlinearMaterial();
}

bool CAESet::hasCreepOrViscousMaterial() const
{
    if (!system)
        return true;
    return domainConditions && domainConditions->hasCreepOrViscousMaterial();
}

bool CAESet::hasContacts() const
{
    if (!system)
        return true;
    return domainConditions && !domainConditions->contacts.empty();
}

void CAESet::getLoadStep(std::uint32_t step, std::int32_t& substeps, double& absoluteTolerance,
                         std::int32_t& iterationLimit) const
{
    if (solve) {
        solve->getLoadStep(step, substeps, absoluteTolerance, iterationLimit);
        return;
    }
    substeps = 0;
    absoluteTolerance = 0.0;
}

std::string CAESet::objectTag(std::uint32_t objectId) const
{
    return "p" + std::to_string(projectId) + "o" + std::to_string(objectId);
}

std::string CAESet::getMeshTag() const
{
    return mesh ? objectTag(mesh->obj_id) : "error";
}

std::string CAESet::getSolutionTag() const
{
    return system ? objectTag(system->solution_id) : "error";
}

} // namespace vxCAE
