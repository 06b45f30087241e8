#include "curves/CurveCache.h"

#include "vxMaterial/model/MaterialProperty.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace vxInspector {

namespace {

/// Appends numbers and texts to a key, such that different ones give different keys.
class Key
{
public:
    template <class Number>
    void add(const Number& number)
    {
        m_text.append(reinterpret_cast<const char*>(&number), sizeof number);
    }

    void add(const std::string& text)
    {
        add(text.size());
        m_text += text;
    }

    void add(const std::vector<double>& numbers)
    {
        add(numbers.size());
        m_text.append(reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(double));
    }

    std::string take() { return std::move(m_text); }

private:
    std::string m_text;
};

void addMaterial(Key& key, const vxMat::MaterialBase& material)
{
    std::vector<std::int32_t> ids;
    for (const auto& [id, property] : material.properties)
        ids.push_back(id);
    std::sort(ids.begin(), ids.end());
    key.add(ids.size());
    for (const std::int32_t id : ids) {
        const vxMat::MaterialProperty& property = *material.findProperty(id);
        key.add(id);
        key.add(property.value);
        key.add(property.values);
        key.add(property.text);
    }
}

void addRequest(Key& key, const vxConstitutive::CurveRequest& request)
{
    key.add(request.mode);
    key.add(request.abscissas);
    key.add(request.compressibility);
    key.add(request.detail);
    key.add(request.chains);
    key.add(request.stresses);
    key.add(request.time);
    key.add(request.cohesion.has_value());
    key.add(request.cohesion.value_or(0.0));
}

} // namespace

void CurveCache::begin()
{
    m_before = std::exchange(m_now, {});
}

std::shared_ptr<const vxConstitutive::Curve> CurveCache::curve(const vxMat::MaterialBase& material,
                                                               const vxConstitutive::Model& model,
                                                               const vxConstitutive::CurveRequest& request)
{
    Key parts;
    parts.add(model.kind());
    addMaterial(parts, material);
    addRequest(parts, request);
    std::string key = parts.take();
    const auto found =
        std::find_if(m_before.begin(), m_before.end(), [&key](const Entry& entry) { return entry.key == key; });
    auto curve =
        found != m_before.end() ? found->curve : std::make_shared<const vxConstitutive::Curve>(model.curve(request));
    m_now.push_back({std::move(key), curve});
    return curve;
}

} // namespace vxInspector
