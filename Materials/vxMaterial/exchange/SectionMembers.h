#pragma once

#include "MemberTable.h"

#include "vxMaterial/exchange/CAEBCS.h"
#include "vxMaterial/exchange/CAEDCS.h"
#include "vxMaterial/exchange/CAEICS.h"
#include "vxMaterial/exchange/CAEMesh.h"
#include "vxMaterial/exchange/CAEResult.h"
#include "vxMaterial/exchange/CAESolve.h"
#include "vxMaterial/exchange/CAESystem.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <vector>

/// The member lists of the sections: the fields and the keys under which they are exchanged.
namespace vxCAE::detail {

// The format has "defrom_type" for reading. This spelling must not change.
inline constexpr auto systemMembers =
    std::make_tuple(count("physics_type", &CAESystem::physics_type), count("analysis_type", &CAESystem::analysis_type),
                    count("solver_form", &CAESystem::solver_form),
                    countReadAs("deform_type", &CAESystem::deform_type, "defrom_type"), member("dim", &CAESystem::dim),
                    member("has_contact", &CAESystem::has_contact), member("cal_stress", &CAESystem::cal_stress),
                    member("ambient_temp", &CAESystem::ambient_temp), member("study_id", &CAESystem::study_id),
                    member("solution_id", &CAESystem::solution_id), member("time_inte", &CAESystem::time_inte));

/// Read for a modal analysis only.
inline constexpr auto modalMembers =
    std::make_tuple(member("n_eigens", &CAESystem::n_eigens), member("lcz_tol", &CAESystem::lcz_tol),
                    member("lcz_max", &CAESystem::lcz_max));

/// Read for a spectrum response analysis only.
inline constexpr auto spectrumMembers =
    std::make_tuple(member("start_mode", &CAESystem::start_mode), member("end_mode", &CAESystem::end_mode));

inline constexpr auto solveMembers = std::make_tuple(
    member("solver", &CAESolve::solver), member("solver_method", &CAESolve::solver_method),
    member("n_iterations", &CAESolve::n_iterations), member("residual_thold", &CAESolve::residual_thold),
    member("n_load_steps", &CAESolve::n_load_steps));

/// A column of the load-step table: an array with an element per step.
template <class Element>
struct StepColumn
{
    const char* key;
    std::vector<Element> CAESolve::*list;
    Conversion conversion;
};

inline constexpr auto stepColumns =
    std::make_tuple(StepColumn<double>{"times", &CAESolve::times, Conversion::Real},
                    StepColumn<bool>{"auto_timing", &CAESolve::auto_timing, Conversion::Boolean},
                    StepColumn<std::int32_t>{"n_substeps", &CAESolve::n_substeps, Conversion::Count},
                    StepColumn<double>{"time_inc", &CAESolve::time_inc, Conversion::Real},
                    StepColumn<double>{"nl_abs_tol", &CAESolve::nl_abs_tol, Conversion::Real},
                    StepColumn<double>{"nl_rel_tol", &CAESolve::nl_rel_tol, Conversion::Real},
                    StepColumn<std::int32_t>{"nl_max_its", &CAESolve::nl_max_its, Conversion::Count});

/// Returns whether the number of load steps in a document exceeds the length of its longest array by more than a
/// million. Readers allocate memory for every step; the limit bounds the memory that one wrong number can request.
inline bool claimsTooManySteps(const Json::Value& solve, std::uint32_t steps)
{
    constexpr std::uint64_t mostMissing = 1000000;
    std::uint64_t longest = 0;
    forEachMember(stepColumns,
                  [&](const auto& column) { longest = std::max<std::uint64_t>(longest, solve[column.key].size()); });
    return steps > longest + mostMissing;
}

inline constexpr auto meshMembers = std::make_tuple(
    member("obj_id", &CAEMesh::obj_id), member("lmesh_id", &CAEMesh::lmesh_id), count("n_nodes", &CAEMesh::n_nodes),
    count("n_elem", &CAEMesh::n_elem), count("n_tet", &CAEMesh::n_tet), count("n_faces", &CAEMesh::n_faces),
    count("n_tri", &CAEMesh::n_tri), count("mesh_src", &CAEMesh::mesh_src), member("mesh_fname", &CAEMesh::mesh_fname),
    member("mesh_dim", &CAEMesh::mesh_dim), count("elem_type", &CAEMesh::elem_type),
    member("elem_order", &CAEMesh::elem_order), member("elem_family", &CAEMesh::elem_family));

inline constexpr auto resultMembers =
    std::make_tuple(count("rst_format", &CAEResult::rst_format), member("rst_fname", &CAEResult::rst_fname),
                    member("rst_path", &CAEResult::rst_path), member("output_iter_log", &CAEResult::output_iter_log),
                    member("output_time_log", &CAEResult::output_time_log),
                    member("output_freq", &CAEResult::output_freq), member("monitor_trans", &CAEResult::monitor_trans));

inline constexpr auto boundaryConditionMembers =
    std::make_tuple(member("obj_id", &CAEBC::obj_id), count("type", &CAEBC::type), member("name", &CAEBC::name));

inline constexpr auto initialConditionMembers =
    std::make_tuple(member("obj_id", &CAEIC::obj_id), member("type", &CAEIC::type), member("name", &CAEIC::name),
                    member("value", &CAEIC::value));

inline constexpr auto domainMembers =
    std::make_tuple(member("mat_id", &DomainEntry::mat_id), member("has_bforce", &DomainEntry::has_bforce),
                    member("topo", &DomainEntry::topo));

/// Exchanged for a shell only.
inline constexpr auto shellMembers =
    std::make_tuple(member("thickness", &DomainEntry::thickness), member("n_inte_points", &DomainEntry::n_inte_points));

inline constexpr auto contactMembers = std::make_tuple(
    member("obj_id", &ContactEntry::obj_id), member("contact_type", &ContactEntry::contact_type),
    member("friction_coeff", &ContactEntry::friction_coeff),
    member("friction_stiffness", &ContactEntry::friction_stiffness), member("formulation", &ContactEntry::formulation),
    member("finite_sliding", &ContactEntry::finite_sliding));

} // namespace vxCAE::detail
