#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <string>

namespace vxCAE {

/// The system that an analysis solves. A field has the name of its JSON member. The solver defines the numbers of
/// solver form and dimension; the section does not interpret the numbers.
///
/// The format has two asymmetries: the deform type is written as "deform_type" and read as "defrom_type", and the
/// settings of modal and spectrum analyses are read but never written.
class VXCAE_EXPORT CAESystem : public CAEBase
{
public:
    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    void readJson(const Json::Value& document) override;

    void setPhysicsType(std::int32_t type);
    /// Turns the letters of `word` to upper case, and sets the physics if the result is one of "STRUCTURAL", "THERMAL",
    /// "ELECTROMAGNETIC", "ACOUSTIC" and "FLUIDS"; leaves it unchanged otherwise.
    void setPhysicsType(std::string& word);
    void setAnalysisType(std::int32_t type);
    void setPhysicsAndAnalysis(std::int32_t physics, std::int32_t analysis);
    std::int32_t getDimension() const;
    void setDimension(std::int32_t dimension);
    /// Returns whether contact or large deformation makes the analysis nonlinear.
    bool isNonlinear() const;

    std::int32_t physics_type = PhysicsType::NotSet;
    std::int32_t analysis_type = AnalysisType::NotSet;
    std::int32_t solver_form = 0;
    std::int32_t deform_type = 0; ///< 1: large deformation
    std::int32_t dim = 0;
    bool has_contact = false;
    bool cal_stress = false;
    double ambient_temp = 22.3; ///< ambient temperature
    std::uint32_t study_id = 0;
    std::uint32_t solution_id = 0;
    std::string time_inte; ///< time integration, "Explicit"

    // Modal analysis: number of eigenvalues, tolerance and iteration limit of the eigensolver
    std::uint32_t n_eigens = 5;
    double lcz_tol = 1e-8;
    std::uint32_t lcz_max = 60;

    // Spectrum response: the modes from first to last
    std::uint32_t start_mode = 1;
    std::uint32_t end_mode = 5;
};

} // namespace vxCAE
