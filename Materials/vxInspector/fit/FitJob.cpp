#include "fit/FitJob.h"

#include "Kelta/Exceptions.h"
#include "vxConstitutive/fit/PlasticFit.h"
#include "vxConstitutive/fit/Ranking.h"
#include "vxConstitutive/fit/RateFits.h"
#include "vxConstitutive/response/HyperelasticModel.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::FitControl;
using vxConstitutive::FitResult;
using vxConstitutive::Mode;
using vxConstitutive::TestData;

std::vector<TestData> testsOf(const std::vector<TestData>& tests, const std::set<Mode>& modes)
{
    std::vector<TestData> some;
    std::copy_if(tests.begin(), tests.end(), std::back_inserter(some),
                 [&modes](const TestData& test) { return modes.count(test.mode) != 0; });
    return some;
}

vxConstitutive::HyperelasticFitRequest rubberRequest(const FitOrder& order)
{
    vxConstitutive::HyperelasticFitRequest request;
    request.tests =
        testsOf(order.tests, {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric});
    request.stability = order.stability;
    request.stableRange = order.stableRange;
    request.error = order.error;
    request.bounds = order.bounds;
    return request;
}

void fitRubber(const FitOrder& order, const FitControl& control, std::vector<FitResult>& results)
{
    const vxConstitutive::HyperelasticFitRequest request = rubberRequest(order);
    if (request.tests.empty())
        return;
    for (FitResult& result : vxConstitutive::fitHyperelastic(request, control))
        results.push_back(std::move(result));
}

void fitMetal(const FitOrder& order, const FitControl& control, std::vector<FitResult>& results)
{
    vxConstitutive::PlasticFitRequest request;
    request.tests = testsOf(order.tests, {Mode::Tensile, Mode::Plastic});
    request.youngsModulus = order.youngsModulus;
    request.poissonsRatio = order.poissonsRatio;
    request.offset = order.offset;
    request.tolerance = order.tolerance;
    request.bounds = order.bounds;
    if (request.tests.empty())
        return;
    std::vector<FitResult> metals;
    metals.push_back(vxConstitutive::fitMultilinear(request, control));
    metals.push_back(vxConstitutive::fitBilinear(request, control));
    vxConstitutive::rankFits(metals);
    std::move(metals.begin(), metals.end(), std::back_inserter(results));
}

void fitCreep(const FitOrder& order, const FitControl& control, std::vector<FitResult>& results)
{
    vxConstitutive::NortonFitRequest request;
    request.tests = testsOf(order.tests, {Mode::Creep, Mode::CreepRate});
    request.error = order.error;
    request.bounds = order.bounds;
    if (!request.tests.empty())
        results.push_back(vxConstitutive::fitNorton(request, control));
}

void fitRelaxing(const FitOrder& order, const FitControl& control, std::vector<FitResult>& results)
{
    vxConstitutive::RelaxationFitRequest request;
    request.tests = testsOf(order.tests, {Mode::Relaxation});
    request.error = order.error;
    request.bounds = order.bounds;
    if (!request.tests.empty())
        results.push_back(vxConstitutive::fitRelaxation(request, control));
}

} // namespace

std::vector<FitResult> fitAll(const FitOrder& order, const FitControl& control)
{
    std::vector<FitResult> results;
    for (const auto fit : {fitRubber, fitMetal, fitCreep, fitRelaxing})
        if (!control.cancelled || !control.cancelled())
            fit(order, control, results);
    return results;
}

vxConstitutive::FitRecord recordOf(const FitResult& result, const FitOrder& order)
{
    const bool isRubber = dynamic_cast<const vxConstitutive::HyperelasticModel*>(result.fitted.get()) != nullptr;
    return isRubber ? recordFit(result, rubberRequest(order)) : recordFit(result, order.error);
}

FitJob::FitJob(FitOrder order, QObject* parent) : QObject(parent)
{
    m_thread = std::thread([this, order = std::move(order)] { run(order); });
}

FitJob::~FitJob()
{
    m_cancelled = true;
    m_thread.join();
}

void FitJob::cancel()
{
    m_cancelled = true;
}

void FitJob::run(const FitOrder& order)
{
    FitControl control;
    control.progress = [this](const vxConstitutive::FitProgress& progress) { tell(progress); };
    control.cancelled = [this] { return m_cancelled.load(); };
    try {
        m_results = fitAll(order, control);
    } catch (...) {
        m_failure = Kelta::currentExceptionText();
    }
    QMetaObject::invokeMethod(this, &FitJob::finished, Qt::QueuedConnection);
}

/// Fits report some hundred times a second; the interface is told each hundredth once.
void FitJob::tell(const vxConstitutive::FitProgress& progress)
{
    const int hundredths = static_cast<int>(progress.part * 100.0);
    if (m_told.exchange(hundredths) == hundredths)
        return;
    const QString model = QString::fromStdString(progress.model);
    QMetaObject::invokeMethod(
        this, [this, model, part = progress.part] { Q_EMIT progressed(model, part); }, Qt::QueuedConnection);
}

} // namespace vxInspector
