#pragma once

#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

namespace vxtest {

/// Returns the document of a JSON text; the test fails if the text is not JSON.
inline Json::Value json(const std::string& text)
{
    auto reading = vxjson::readJsonText(text);
    EXPECT_FALSE(reading.error) << text;
    return std::move(reading.document);
}

/// Returns the output of a section for an empty document.
template <class Section>
Json::Value written(const Section& section)
{
    Json::Value document;
    section.writeJson(document);
    return document;
}

/// Returns a classified material entry with numbers under ids.
inline std::unique_ptr<vxCAE::MaterialEntry> makeEntry(std::initializer_list<std::pair<int, double>> numbers)
{
    auto entry = std::make_unique<vxCAE::MaterialEntry>();
    for (const auto& [id, number] : numbers) {
        auto property = vxMat::findPropertyRecord(id)->create();
        property->value = number;
        entry->material->setProperty(id, std::move(property));
    }
    entry->classifyKind();
    return entry;
}

} // namespace vxtest
