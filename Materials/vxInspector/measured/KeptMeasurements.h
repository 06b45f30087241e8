#pragma once

#include "vxConstitutive/record/Measurements.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The measurements that materials keep as a setting of their objects.
namespace vxInspector {

class BesideJob;

/// The measurements of a text, or the reason why they cannot be read.
struct KeptMeasurements
{
    vxConstitutive::Measurements measurements = {};
    std::optional<vxjson::JsonError> fault = std::nullopt; ///< if it is set, there are no measurements
};

/// Returns the measurements of a setting; none if the text is empty.
KeptMeasurements readMeasurements(const std::string& text);

/// Returns a sentence in the user's language that says why the measurements of a material cannot be read.
QString faultText(const vxjson::JsonError& fault);

/// Returns whether two tests are the same: name, points and what belongs to them.
bool isSame(const vxConstitutive::TestData& one, const vxConstitutive::TestData& other);

/// Measurements, and the text in which a material keeps them.
struct KeptText
{
    std::string text;
    std::shared_ptr<const KeptMeasurements> measurements;
};

/// Returns the measurements of `text` with tests and the record of a fit. A test replaces a kept one of its name.
/// \throws std::runtime_error with a translated text if `text` cannot be read, or if the tests cannot be written
KeptText addFit(const std::string& text, const std::vector<vxConstitutive::TestData>& tests,
                vxConstitutive::FitRecord record);

/// Returns the measurements of `text` without the tests of a name, and without the records of fits none of whose tests is kept
/// any more.
/// \throws std::runtime_error with a translated text if `text` cannot be read
KeptText withoutTest(const std::string& text, const std::string& name);

/// Reads texts once: the texts of unchanged materials are read again and again. Long texts are read beside the interface.
class MeasurementsCache : public QObject
{
    Q_OBJECT

public:
    explicit MeasurementsCache(QObject* parent = nullptr);
    /// Waits until no text is being read.
    ~MeasurementsCache() override;

    /// Returns the measurements of a text; null if it is empty, or is being read. done() is then sent later.
    std::shared_ptr<const KeptMeasurements> read(const std::string& text);
    /// Takes note of the measurements of a text, which then need not be read.
    void store(const KeptText& kept);

Q_SIGNALS:
    void done(); ///< sent when a long text has been read

private:
    using Entry =
        std::pair<std::string, std::shared_ptr<const KeptMeasurements>>; ///< null while the text is being read

    std::shared_ptr<const KeptMeasurements> add(Entry entry);
    void readBeside(const std::string& text);
    void take(BesideJob& job, const std::shared_ptr<KeptText>& kept);

    std::vector<Entry> m_read; ///< the latest is first
    std::vector<std::unique_ptr<BesideJob>> m_jobs;
};

} // namespace vxInspector
