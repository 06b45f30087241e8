#include "measured/KeptMeasurements.h"

#include "Kelta/Exceptions.h"
#include "measured/BesideJob.h"

#include <QCoreApplication>

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace vxInspector {

namespace {

using vxConstitutive::MeasurementsError;
using vxConstitutive::TestData;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::KeptMeasurements", text);
}

/// Returns the measurements of a text that is about to be changed.
KeptMeasurements readForChange(const std::string& text)
{
    KeptMeasurements kept = readMeasurements(text);
    if (kept.fault)
        throw std::runtime_error(faultText(*kept.fault).toStdString());
    return kept;
}

QString reasonText(const vxjson::JsonError& fault)
{
    const QString reason = QCoreApplication::translate("vxjson::JsonError", fault.reason);
    return reason.contains(QLatin1String("%1")) ? reason.arg(QString::fromStdString(fault.shown)) : reason;
}

KeptText written(KeptMeasurements kept)
{
    try {
        std::string text = vxConstitutive::writeMeasurements(kept.measurements);
        return {std::move(text), std::make_shared<const KeptMeasurements>(std::move(kept))};
    } catch (const MeasurementsError& error) {
        throw std::runtime_error(tr("The tests cannot be written: %1.").arg(reasonText(error.fault())).toStdString());
    }
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

bool isSame(const TestData& one, const TestData& other)
{
    const auto scalars = [](const TestData& test) {
        return std::tie(test.name, test.mode, test.parameter, test.weight);
    };
    return scalars(one) == scalars(other) && one.abscissas == other.abscissas && one.ordinates == other.ordinates;
}

KeptText addFit(const std::string& text, const std::vector<TestData>& tests, vxConstitutive::FitRecord record)
{
    KeptMeasurements kept = readForChange(text);
    kept.measurements.addFit(tests, std::move(record));
    return written(std::move(kept));
}

KeptText withoutTest(const std::string& text, const std::string& name)
{
    KeptMeasurements kept = readForChange(text);
    std::vector<TestData>& tests = kept.measurements.tests;
    tests.erase(std::remove_if(tests.begin(), tests.end(), [&name](const TestData& test) { return test.name == name; }),
                tests.end());
    const auto isKept = [&tests](const vxConstitutive::TestAgreement& of) {
        return std::any_of(tests.begin(), tests.end(), [&of](const TestData& test) { return test.name == of.test; });
    };
    const auto isLeft = [&isKept](const vxConstitutive::FitRecord& fit) {
        return std::none_of(fit.tests.begin(), fit.tests.end(), isKept);
    };
    std::vector<vxConstitutive::FitRecord>& fits = kept.measurements.fits;
    fits.erase(std::remove_if(fits.begin(), fits.end(), isLeft), fits.end());
    return written(std::move(kept));
}

MeasurementsCache::MeasurementsCache(QObject* parent) : QObject(parent) {}

MeasurementsCache::~MeasurementsCache() = default;

std::shared_ptr<const KeptMeasurements> MeasurementsCache::read(const std::string& text)
{
    constexpr std::size_t mostAtOnce = 500000; // bytes
    if (text.empty())
        return nullptr;
    const auto found =
        std::find_if(m_read.begin(), m_read.end(), [&text](const Entry& entry) { return entry.first == text; });
    if (found != m_read.end()) {
        std::rotate(m_read.begin(), found, found + 1);
        return m_read.front().second;
    }
    if (text.size() <= mostAtOnce)
        return add({text, std::make_shared<KeptMeasurements>(readMeasurements(text))});
    readBeside(text);
    return add({text, nullptr});
}

void MeasurementsCache::store(const KeptText& kept)
{
    const auto found =
        std::find_if(m_read.begin(), m_read.end(), [&kept](const Entry& entry) { return entry.first == kept.text; });
    if (found != m_read.end())
        found->second = kept.measurements;
    else
        add({kept.text, kept.measurements});
}

std::shared_ptr<const KeptMeasurements> MeasurementsCache::add(Entry entry)
{
    constexpr std::size_t most = 20; // as many materials are drawn
    m_read.insert(m_read.begin(), std::move(entry));
    m_read.resize(std::min(m_read.size(), most));
    return m_read.front().second;
}

void MeasurementsCache::readBeside(const std::string& text)
{
    const auto kept = std::make_shared<KeptText>(KeptText{text, nullptr});
    m_jobs.push_back(std::make_unique<BesideJob>(
        [kept] { kept->measurements = std::make_shared<KeptMeasurements>(readMeasurements(kept->text)); }));
    BesideJob* const job = m_jobs.back().get();
    connect(job, &BesideJob::finished, this, [this, job, kept] { take(*job, kept); });
}

/// A text that could not be read for want of memory is forgotten, and read again when it is needed.
void MeasurementsCache::take(BesideJob& job, const std::shared_ptr<KeptText>& kept)
{
    const QString failure = job.failure();
    const auto isJob = [&job](const std::unique_ptr<BesideJob>& one) { return one.get() == &job; };
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), isJob);
    found->release()->deleteLater(); // this is a slot of its signal
    m_jobs.erase(found);
    Kelta::guarded(tr("The kept tests cannot be read"), [&] {
        const auto isText = [&kept](const Entry& entry) { return entry.first == kept->text; };
        if (!failure.isEmpty()) {
            m_read.erase(std::remove_if(m_read.begin(), m_read.end(), isText), m_read.end());
            throw std::runtime_error(failure.toStdString());
        }
        const auto entry = std::find_if(m_read.begin(), m_read.end(), isText);
        if (entry != m_read.end())
            entry->second = kept->measurements;
        Q_EMIT done();
    });
}

} // namespace vxInspector
