#include "vxConstitutive/Model.h"

namespace vxConstitutive {

namespace {

const std::vector<ModelRecord>& modelTable()
{
    static const std::vector<ModelRecord> table{
        {ModelKind::LinearElasticity, "linear-elasticity", "linear elasticity"},
        {ModelKind::NeoHooke, "neo-hooke", "Neo-Hookean"},
        {ModelKind::MooneyRivlin, "mooney-rivlin", "Mooney-Rivlin"},
        {ModelKind::ArrudaBoyce, "arruda-boyce", "Arruda-Boyce"},
        {ModelKind::MisesPlasticity, "mises", "Mises plasticity"},
        {ModelKind::DruckerPrager, "drucker-prager", "Drucker-Prager"},
        {ModelKind::MohrCoulomb, "mohr-coulomb", "Mohr-Coulomb"},
        {ModelKind::NortonCreep, "norton", "Norton creep"},
        {ModelKind::ViscoElasticity, "visco-elasticity", "visco-elasticity"},
    };
    return table;
}

} // namespace

Model::~Model() = default;

const std::vector<ModelRecord>& modelRecords()
{
    return modelTable();
}

const ModelRecord& modelRecord(ModelKind kind)
{
    return modelTable()[static_cast<std::size_t>(kind)];
}

} // namespace vxConstitutive
