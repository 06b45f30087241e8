#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace vxCAE {

/// The conditions of one body: its material, body force, topology and, for a shell, its section. A field has the name
/// of its JSON member. The entry owns its material entry but exchanges only the name of the material: the materials are
/// in the materials section and are matched by `mat_id`.
struct VXCAE_EXPORT DomainEntry
{
    DomainEntry();
    DomainEntry(const DomainEntry&) = delete;
    DomainEntry& operator=(const DomainEntry&) = delete;
    ~DomainEntry();

    /// Returns whether the topology is "Shell" or "shell". Thickness and integration points matter only for a shell.
    bool isShell() const;

    bool has_bforce = false;
    std::array<double, 3> bforce{};          ///< x, y, z
    std::unique_ptr<MaterialEntry> material; ///< never null
    std::uint32_t mat_id = 0;
    std::string topo;
    double thickness = 0.0;
    std::uint32_t n_inte_points = 0;
};

/// A contact between bodies. A field has the name of its JSON member.
struct VXCAE_EXPORT ContactEntry
{
    explicit ContactEntry(std::uint32_t objectId);

    const std::string& getContactType() const { return contact_type; }
    const std::string& getFormulation() const { return formulation; }
    bool getFiniteSliding() const { return finite_sliding; }
    void setFiniteSliding(bool finite) { finite_sliding = finite; }
    /// Returns the solver's word for the sliding: "FSLID" if it is finite, otherwise "SSLID".
    const char* getSlidingText() const;

    std::uint32_t obj_id;
    std::string contact_type = "undefined";
    double friction_coeff = 0.1;
    double friction_stiffness = 1.0;
    std::string formulation = "sLagrange";
    bool finite_sliding = false;
    std::array<double, 4> solverParameters{1e-5, 0.001, 1000.0, 1000.0}; ///< not exchanged
};

/// The domain conditions of an analysis and the contacts between its bodies, which it owns.
class VXCAE_EXPORT CAEDCS : public CAEBase
{
public:
    CAEDCS() = default;
    CAEDCS(const CAEDCS&) = delete;
    CAEDCS& operator=(const CAEDCS&) = delete;
    ~CAEDCS() override = default;

    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    void readJson(const Json::Value& document) override;

    /// Stores `domain`, which must not be null, under `objectId`, and destroys an earlier one.
    void addDomain(std::uint32_t objectId, std::unique_ptr<DomainEntry> domain);
    /// Stores `contact`, which must not be null, under `objectId`, and destroys an earlier one.
    void addContact(std::uint32_t objectId, std::unique_ptr<ContactEntry> contact);

    /// Returns the material entry of a domain, which owns it; null if the domain is unknown.
    MaterialEntry* getDomainMaterial(std::uint32_t objectId) const;
    /// Returns whether a domain has a material of any nonlinear kind.
    bool hasNonlinearMaterial() const;
    /// Returns whether a domain has a material of a creep or viscous kind.
    bool hasCreepOrViscousMaterial() const;

    std::map<std::uint32_t, std::unique_ptr<DomainEntry>> domains;   ///< by object id
    std::map<std::uint32_t, std::unique_ptr<ContactEntry>> contacts; ///< by object id
};

} // namespace vxCAE
