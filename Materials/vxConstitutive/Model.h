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

/// What is fixed about a model.
struct ModelRecord
{
    ModelKind kind;
    const char* key;  ///< on command lines: "mooney-rivlin"
    const char* name; ///< English, the source of translations: "Mooney-Rivlin"
};

/// All models in the order of ModelKind.
VXCONSTITUTIVE_EXPORT const std::vector<ModelRecord>& modelRecords();
VXCONSTITUTIVE_EXPORT const ModelRecord& modelRecord(ModelKind kind);

/// Whether a constant was given or computed from others.
enum class Origin
{
    Given,
    Derived
};

/// A constant of a model, for people to read.
struct Constant
{
    const char* name; ///< English, the source of translations: "initial shear modulus"
    const char* symbol;
    const char* unit; ///< SI
    double value;
    Origin origin;
};

/// A material model with its constants: a function from abscissas to stresses, strains or moduli. It does not change
/// and may be used by several threads.
class VXCONSTITUTIVE_EXPORT Model
{
public:
    explicit Model(ModelKind kind) : m_kind(kind) {}
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    virtual ~Model();

    ModelKind kind() const { return m_kind; }

    /// The modes that the model has a response in.
    virtual std::vector<Mode> modes() const = 0;

    /// The response. A mode that is not the model's gives a curve without columns and a finding; an abscissa outside
    /// the model's domain gives NaN and a finding. Throws nothing but std::bad_alloc.
    virtual Curve curve(const CurveRequest& request) const = 0;

    /// The constants as given and what follows from them.
    virtual std::vector<Constant> constants() const = 0;

    /// What is doubtful about the constants, whatever the curve.
    const std::vector<Finding>& findings() const { return m_findings; }

protected:
    void note(Finding finding) { m_findings.push_back(std::move(finding)); }

private:
    ModelKind m_kind;
    std::vector<Finding> m_findings;
};

} // namespace vxConstitutive
