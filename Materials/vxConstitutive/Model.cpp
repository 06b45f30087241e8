#include "vxConstitutive/Model.h"

#include "TranslatedText.h"

namespace vxConstitutive {

namespace {

const std::vector<ModelRecord>& modelTable()
{
    static const std::vector<ModelRecord> table{
        {ModelKind::LinearElasticity, "linear-elasticity", QT_TRANSLATE_NOOP("vxConstitutive", "linear elasticity")},
        {ModelKind::NeoHooke, "neo-hooke", QT_TRANSLATE_NOOP("vxConstitutive", "Neo-Hookean")},
        {ModelKind::MooneyRivlin, "mooney-rivlin", QT_TRANSLATE_NOOP("vxConstitutive", "Mooney-Rivlin")},
        {ModelKind::ArrudaBoyce, "arruda-boyce", QT_TRANSLATE_NOOP("vxConstitutive", "Arruda-Boyce")},
        {ModelKind::MisesPlasticity, "mises", QT_TRANSLATE_NOOP("vxConstitutive", "Mises plasticity")},
        {ModelKind::DruckerPrager, "drucker-prager", QT_TRANSLATE_NOOP("vxConstitutive", "Drucker-Prager")},
        {ModelKind::MohrCoulomb, "mohr-coulomb", QT_TRANSLATE_NOOP("vxConstitutive", "Mohr-Coulomb")},
        {ModelKind::NortonCreep, "norton", QT_TRANSLATE_NOOP("vxConstitutive", "Norton creep")},
        {ModelKind::ViscoElasticity, "visco-elasticity", QT_TRANSLATE_NOOP("vxConstitutive", "visco-elasticity")},
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
