#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/Texts.h"
#include "vxConstitutive/data/TestData.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/TestTable.h"
#include "vxConstitutive/data/UnitFactor.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/fit/PlasticFit.h"
#include "vxConstitutive/fit/RateFits.h"
#include "vxConstitutive/response/FrictionModel.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxConstitutive/response/Langevin.h"
#include "vxConstitutive/response/LinearElasticModel.h"
#include "vxConstitutive/response/NortonModel.h"
#include "vxConstitutive/response/PlasticModel.h"
#include "vxConstitutive/response/Stability.h"
#include "vxConstitutive/response/StrainEnergy.h"
#include "vxConstitutive/response/ViscoElasticModel.h"
#include "vxDecks/Deck.h"
#include "vxDecks/Format.h"
#include "vxDecks/Mapping.h"
#include "vxDecks/Report.h"
#include "vxMaterial/exchange/CAEBCS.h"
#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/CAEDCS.h"
#include "vxMaterial/exchange/CAEICS.h"
#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/exchange/CAEMesh.h"
#include "vxMaterial/exchange/CAEResult.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CAESolve.h"
#include "vxMaterial/exchange/CAESystem.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/exchange/MaterialEntry.h"
#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonPath.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/json/JsonWriter.h"
#include "vxMaterial/json/NumberWords.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/Dimension.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Message.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/Writing.h"

#include <iostream>
#include <memory>

/// Uses every installed header like a program outside the tree: takes a material of the library,
/// makes a card, writes a document and reads its text, reads a number with a unit, and finds a model.
int main()
{
    auto entry = std::make_unique<vxCAE::MaterialEntry>();
    entry->material->copyFrom(vxMat::StructuralSteel());
    entry->classifyKind();
    std::cout << entry->getElasticLine();

    vxCAE::CAESet set(1, vxCAE::ProjectKind::Material);
    set.materials->addMaterial(1, std::move(entry));
    Json::Value document;
    set.writeJson(document);
    const auto reading = vxjson::readJsonText(vxjson::toStyledText(document), vxjson::JsonDialect::Strict);
    std::cout << ' ' << reading.document["material"].size();

    const auto modulus = vxUnits::readQuantity(vxMat::PropertyId::YoungsModulus, "210 GPa");
    std::cout << ' ' << modulus->value;

    const vxConstitutive::MaterialModels models = vxConstitutive::modelsOf(vxMat::StructuralSteel());
    std::cout << ' ' << vxConstitutive::modelRecord(models.models.front()->kind()).key << '\n';
}
