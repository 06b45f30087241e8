#include "models/ModelQuantities.h"

#include "vxMaterial/model/PropertyId.h"

namespace vxDecks {

using Id = vxMat::PropertyId;

const std::vector<std::int32_t>& hyperelasticIds()
{
    static const std::vector<std::int32_t> ids{Id::NeoHooke,
                                               Id::MooneyRivlin,
                                               Id::ArrudaBoyce,
                                               Id::InitialShearModulusMu,
                                               Id::LimitingNetworkStretch,
                                               Id::MaterialConstantC01,
                                               Id::MaterialConstantC10,
                                               Id::MaterialConstantC11,
                                               Id::IncompressibilityParameterD1};
    return ids;
}

const std::vector<std::int32_t>& creepIds()
{
    static const std::vector<std::int32_t> ids{Id::Creep, Id::CreepModulusA, Id::CreepModulusN, Id::CreepModulusM};
    return ids;
}

const std::vector<std::int32_t>& pronyIds()
{
    static const std::vector<std::int32_t> ids{Id::ViscoElasticity, Id::ShearRelaxationModulus, Id::RelaxationTime};
    return ids;
}

} // namespace vxDecks
