#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Finding.h"

#include <string>
#include <vector>

namespace vxConstitutive {

/// The models that the catalogue has constants for.
enum class ModelKind
{
    LinearElasticity,
    NeoHooke,
    MooneyRivlin,
    ArrudaBoyce,
    MisesPlasticity,
    DruckerPrager,
    MohrCoulomb,
    NortonCreep,
    ViscoElasticity,
};

/// The fixed properties of a model.
struct ModelRecord
{
    ModelKind kind;
    const char* key;  ///< on command lines: "mooney-rivlin"
    const char* name; ///< English, the source of translations: "Mooney-Rivlin"
};

/// Returns all models, in the order of ModelKind.
VXCONSTITUTIVE_EXPORT const std::vector<ModelRecord>& modelRecords();
VXCONSTITUTIVE_EXPORT const ModelRecord& modelRecord(ModelKind kind);

/// Whether a constant was given or computed from other constants.
enum class Origin
{
    Given,
    Derived
};

/// A constant of a model, for display.
struct Constant
{
    const char* name; ///< English, the source of translations: "initial shear modulus"
    const char* symbol;
    const char* unit; ///< SI
    double value;
    Origin origin;
};

/// A material model with its constants: a function from abscissas to stresses, strains or moduli. Immutable, so safe to use
/// from several threads.
class VXCONSTITUTIVE_EXPORT Model
{
public:
    explicit Model(ModelKind kind) : m_kind(kind) {}
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    virtual ~Model();

    ModelKind kind() const { return m_kind; }

    /// Returns the modes in which the model has a response.
    virtual std::vector<Mode> modes() const = 0;

    /// Returns the response. If the model does not have the mode, the curve has no columns and a finding. If an abscissa is
    /// outside the domain of the model, its values are NaN and there is a finding. Throws only std::bad_alloc.
    virtual Curve curve(const CurveRequest& request) const = 0;

    /// Returns the given constants and those that follow from them.
    virtual std::vector<Constant> constants() const = 0;

    /// Returns the findings about the constants.
    const std::vector<Finding>& findings() const { return m_findings; }

protected:
    void note(Finding finding) { m_findings.push_back(std::move(finding)); }

private:
    ModelKind m_kind;
    std::vector<Finding> m_findings;
};

} // namespace vxConstitutive
