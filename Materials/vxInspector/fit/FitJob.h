#pragma once

#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/record/Measurements.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace vxInspector {

/// What is fitted. The modes of the tests decide which models are fitted.
struct FitOrder
{
    std::vector<vxConstitutive::TestData> tests;
    vxConstitutive::StabilityDemand stability = vxConstitutive::StabilityDemand::OverData;
    vxConstitutive::Range stableRange = {1.0, 1.0}; ///< stretches, with StabilityDemand::OverRange
    vxConstitutive::ErrorMeasure error = vxConstitutive::ErrorMeasure::OfLargest;
    vxConstitutive::BoundsById bounds = {};
    std::optional<double> youngsModulus = {}; ///< Pa; of a metal; from the curve if absent
    double poissonsRatio = 0.5;               ///< of a metal
    double offset = 0.002;                    ///< the plastic strain at which a metal yields
    double tolerance = 0.005;                 ///< of a multilinear curve, by its largest stress
};

/// Fits all models that the tests of an order can determine, best first for each kind of model.
std::vector<vxConstitutive::FitResult> fitAll(const FitOrder& order, const vxConstitutive::FitControl& control);

/// Returns the record of a result of fitAll().
vxConstitutive::FitRecord recordOf(const vxConstitutive::FitResult& result, const FitOrder& order);

/// A fit in a thread of its own. The destructor cancels it and waits for its end, which is soon, so that the job may be
/// deleted at any moment. The signals are sent in the thread of the job.
class FitJob : public QObject
{
    Q_OBJECT

public:
    explicit FitJob(FitOrder order, QObject* parent = nullptr);
    ~FitJob() override;

    /// Ends the fit soon; finished() is sent with the models that are done.
    void cancel();
    /// Returns the results; valid after finished().
    const std::vector<vxConstitutive::FitResult>& results() const { return m_results; }
    /// Returns why there are no results; empty if there are.
    const QString& failure() const { return m_failure; }
    bool isCancelled() const { return m_cancelled; }

Q_SIGNALS:
    void progressed(const QString& model, double part); ///< `part` from 0 to 1
    void finished();

private:
    void run(const FitOrder& order);
    void tell(const vxConstitutive::FitProgress& progress);

    std::atomic<bool> m_cancelled{false};
    std::atomic<int> m_told{-1}; ///< the last part that was told, in hundredths
    std::vector<vxConstitutive::FitResult> m_results;
    QString m_failure;
    std::thread m_thread;
};

} // namespace vxInspector
