#include "DecksTesting.h"

#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

namespace vxtest {

using Id = vxMat::PropertyId;

vxMat::MaterialProperty& MaterialMaker::add(std::int32_t id)
{
    auto property = vxMat::findPropertyRecord(id)->create();
    vxMat::MaterialProperty& made = *property;
    m_material.setProperty(id, std::move(property));
    return made;
}

MaterialMaker& MaterialMaker::number(std::int32_t id, double value)
{
    add(id).value = value;
    return *this;
}

MaterialMaker& MaterialMaker::list(std::int32_t id, const std::vector<double>& values)
{
    add(id).values = values;
    return *this;
}

MaterialMaker& MaterialMaker::word(std::int32_t id, const std::string& value)
{
    add(id).text = value;
    return *this;
}

MaterialMaker& MaterialMaker::on(std::int32_t id)
{
    add(id);
    return *this;
}

std::unique_ptr<MaterialMaker> elastic()
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->on(Id::IsotropicElasticity).number(Id::YoungsModulus, 2e11).number(Id::PoissonsRatio, 0.3);
    return maker;
}

namespace {

const vxMat::MatDBManager& library()
{
    static const auto manager = [] {
        auto made = std::make_unique<vxMat::MatDBManager>();
        made->initMaterialLibrary();
        return made;
    }();
    return *manager;
}

} // namespace

const vxMat::MaterialBase& libraryMaterial(vxMat::eMaterialType type)
{
    return *library().materials.at(static_cast<std::int32_t>(type));
}

std::vector<const vxMat::MaterialBase*> libraryMaterials()
{
    const auto all = vxMat::materialsInLibraryOrder(library());
    return {all.begin(), all.end()};
}

vxDecks::Deck deckOf(vxDecks::Format format, const vxMat::MaterialBase& material, const std::string& units,
                     const std::string& name)
{
    vxDecks::DeckOptions options;
    if (!units.empty())
        options.units = *vxUnits::UnitSystem::parse(units);
    return vxDecks::writeDeck(format, {{name, 1, &material}}, options);
}

vxDecks::ReportRow rowOf(const vxDecks::Deck& deck, std::int32_t id)
{
    for (const vxDecks::ReportRow& row : deck.report.materials.at(0).rows) {
        if (row.slot == id)
            return row;
    }
    ADD_FAILURE() << "no row for " << id;
    return {};
}

std::string outcomeOf(const vxDecks::Deck& deck, std::int32_t id)
{
    const vxDecks::ReportRow row = rowOf(deck, id);
    std::string text = nameOf(row.outcome);
    for (const vxUnits::Message& message : row.how)
        text += ": " + message.text();
    return text;
}

} // namespace vxtest
