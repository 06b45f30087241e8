#include "measured/KeptMeasurements.h"

#include <QCoreApplication>

#include <algorithm>
#include <stdexcept>

namespace vxInspector {

namespace {

using vxConstitutive::MeasurementsError;
using vxConstitutive::TestData;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::KeptMeasurements", text);
}

QString reasonText(const vxjson::JsonError& fault)
{
    const QString reason = QCoreApplication::translate("vxjson::JsonError", fault.reason);
    return reason.contains(QLatin1String("%1")) ? reason.arg(QString::fromStdString(fault.shown)) : reason;
}

} // namespace

KeptMeasurements readMeasurements(const std::string& text)
{
    try {
        return {vxConstitutive::readMeasurements(text)};
    } catch (const MeasurementsError& error) {
        return {{}, error.fault()};
    }
}

QString faultText(const vxjson::JsonError& fault)
{
    return tr("The kept tests cannot be read: %1. They are left as they are.").arg(reasonText(fault));
}

bool areSame(const std::vector<TestData>& one, const std::vector<TestData>& other)
{
    return one.size() == other.size() &&
           vxConstitutive::writeMeasurements({one, {}}) == vxConstitutive::writeMeasurements({other, {}});
}

std::string addFit(const std::string& text, const std::vector<TestData>& tests, vxConstitutive::FitRecord record)
{
    KeptMeasurements kept = readMeasurements(text);
    if (kept.fault)
        throw std::runtime_error(faultText(*kept.fault).toStdString());
    kept.measurements.addFit(tests, std::move(record));
    try {
        return vxConstitutive::writeMeasurements(kept.measurements);
    } catch (const MeasurementsError& error) {
        throw std::runtime_error(tr("The tests cannot be written: %1.").arg(reasonText(error.fault())).toStdString());
    }
}

std::shared_ptr<const KeptMeasurements> MeasurementsCache::read(const std::string& text)
{
    if (text.empty())
        return nullptr;
    constexpr std::size_t most = 20; // as many materials are drawn
    const auto found =
        std::find_if(m_read.begin(), m_read.end(), [&text](const auto& one) { return one.first == text; });
    if (found != m_read.end()) {
        std::rotate(m_read.begin(), found, found + 1);
    } else {
        m_read.emplace(m_read.begin(), text, std::make_shared<KeptMeasurements>(readMeasurements(text)));
        m_read.resize(std::min(m_read.size(), most));
    }
    return m_read.front().second;
}

} // namespace vxInspector
