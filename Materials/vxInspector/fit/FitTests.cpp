#include "fit/FitTests.h"

#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "measured/BesideJob.h"
#include "vxMaterial/project/MaterialObject.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::TestData;
using vxConstitutive::TestReading;

bool isOwn(const LoadedTest& test)
{
    return !test.isKept;
}

const std::vector<TestData>& testsOf(const KeptMeasurements* kept)
{
    static const std::vector<TestData> none;
    return kept != nullptr ? kept->measurements.tests : none;
}

/// Returns whether a test is in a list as it is.
bool isAmong(const LoadedTest& test, const std::vector<TestData>& tests)
{
    return test.reading.data && std::any_of(tests.begin(), tests.end(),
                                            [&test](const TestData& one) { return isSame(one, *test.reading.data); });
}

/// Returns whether two lists have the same tests in the same order.
bool areSame(const std::vector<TestData>& one, const std::vector<TestData>& other)
{
    return &one == &other || std::equal(one.begin(), one.end(), other.begin(), other.end(), isSame);
}

const std::string& measurementsOf(const Mat::MaterialObject& material)
{
    return material.getSetting(vxConstitutive::measurementsSetting);
}

} // namespace

FitTests::FitTests(MeasurementsCache& cache, QObject* parent) : QObject(parent), m_cache(cache) {}

FitTests::~FitTests() = default;

const LoadedTest* FitTests::at(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_tests.size() ? &m_tests[static_cast<std::size_t>(row)]
                                                                      : nullptr;
}

std::vector<const TestData*> FitTests::data() const
{
    std::vector<const TestData*> all;
    for (const LoadedTest& test : m_tests)
        if (test.reading.data)
            all.push_back(&*test.reading.data);
    return all;
}

bool FitTests::hasOwn() const
{
    return std::any_of(m_tests.begin(), m_tests.end(), isOwn);
}

bool FitTests::isReading() const
{
    return isLoading() ||
           std::any_of(m_tests.begin(), m_tests.end(), [](const LoadedTest& test) { return test.pending != nullptr; });
}

void FitTests::noteChange()
{
    ++m_revision;
    Q_EMIT changed();
}

void FitTests::add(LoadedTest test)
{
    test.request.name = freeName(test.request.name);
    m_tests.push_back(std::move(test));
    noteChange();
    Q_EMIT added(static_cast<int>(m_tests.size()) - 1);
}

/// Materials keep one test of each name.
std::string FitTests::freeName(const std::string& name) const
{
    std::string free = name;
    const auto hasName = [&free](const LoadedTest& test) { return test.request.name == free; };
    for (int number = 2; std::any_of(m_tests.begin(), m_tests.end(), hasName); ++number)
        free = name + " (" + std::to_string(number) + ')';
    return free;
}

void FitTests::addText(const QString& name, std::string text)
{
    constexpr std::size_t mostAtOnce = 500000; // bytes
    if (text.size() <= mostAtOnce && m_loading.empty())
        return add(loadTest(name, text));
    const auto loading = std::make_shared<Loading>();
    m_loading.push_back(loading);
    runBeside([loading, name, text = std::move(text)] { loading->test = loadTest(name, text); },
              [this, loading] {
                  loading->isDone = true;
                  takeLoaded();
              });
    Q_EMIT readingBegins();
}

/// Adds the tests whose files have been read, in the order in which the user has chosen them.
void FitTests::takeLoaded()
{
    while (!m_loading.empty() && m_loading.front()->isDone) {
        const std::shared_ptr<Loading> loading = m_loading.front();
        m_loading.erase(m_loading.begin());
        if (loading->test.table != nullptr)
            add(std::move(loading->test));
        else
            noteChange();
    }
}

void FitTests::takeOut(int row)
{
    if (at(row) == nullptr)
        return;
    const bool wasOwn = isOwn(*at(row));
    m_tests.erase(m_tests.begin() + row);
    if (wasOwn && m_tests.empty())
        showKept();
    else
        noteChange();
}

void FitTests::change(int row, const std::function<void(LoadedTest&)>& change)
{
    if (at(row) == nullptr)
        return;
    LoadedTest& test = m_tests[static_cast<std::size_t>(row)];
    change(test);
    test.isKept = false;
    if (test.table->rows() > mostReadAtOnce && test.mode)
        readBeside(test);
    else
        readAgain(test);
    noteChange();
}

/// Runs work in another thread, and then a function in the thread of the interface, even if the work fails.
void FitTests::runBeside(std::function<void()> work, std::function<void()> whenDone)
{
    m_jobs.push_back(std::make_unique<BesideJob>(std::move(work)));
    BesideJob* const job = m_jobs.back().get();
    connect(job, &BesideJob::finished, this, [this, job, whenDone = std::move(whenDone)] {
        const QString failure = job->failure();
        const auto isJob = [job](const std::unique_ptr<BesideJob>& one) { return one.get() == job; };
        const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), isJob);
        found->release()->deleteLater(); // this is a slot of its signal
        m_jobs.erase(found);
        Kelta::guarded(tr("The test data cannot be used"), [&] {
            whenDone();
            if (!failure.isEmpty())
                throw std::runtime_error(failure.toStdString());
        });
    });
}

void FitTests::readBeside(LoadedTest& test)
{
    std::function<void()> work = readingLater(test);
    runBeside(std::move(work), [this, reading = test.pending] { takeReading(reading); });
}

/// Takes a reading that another thread has made. A test that has changed since waits for another one.
void FitTests::takeReading(const std::shared_ptr<TestReading>& reading)
{
    const auto found = std::find_if(m_tests.begin(), m_tests.end(),
                                    [&reading](const LoadedTest& test) { return test.pending == reading; });
    if (found == m_tests.end())
        return;
    found->pending = nullptr;
    found->reading = std::move(*reading);
    noteChange();
}

void FitTests::follow(const Mat::MaterialObject& material)
{
    const RowPlace place = placeOf(material);
    const bool isOther = !(std::exchange(m_followed, place) == place);
    checkKept();
    const std::string& text = measurementsOf(material);
    auto kept = m_cache.read(text);
    m_isReadingKept = kept == nullptr && !text.empty();
    if (m_isReadingKept && !isOther)
        return;
    const bool stays = !isOther && (kept == m_keptThere || areSame(testsOf(kept.get()), testsOf(m_keptThere.get())));
    m_keptThere = std::move(kept);
    if (!stays && !hasOwn())
        showKept();
}

void FitTests::checkKept()
{
    for (LoadedTest& test : m_tests) {
        const Mat::MaterialObject* const keeper = materialAt(test.keeper);
        if (keeper == nullptr)
            continue;
        const std::string& text = measurementsOf(*keeper);
        const auto kept = m_cache.read(text);
        if (kept != nullptr || text.empty())
            test.isKept = isAmong(test, testsOf(kept.get()));
    }
}

/// Shows the tests that the followed material keeps in place of the present ones.
void FitTests::showKept()
{
    const std::vector<TestData>& tests = testsOf(m_keptThere.get());
    const auto isShown = [](const LoadedTest& test, const TestData& data) {
        return test.reading.data && isSame(*test.reading.data, data);
    };
    if (!m_tests.empty() && std::equal(m_tests.begin(), m_tests.end(), tests.begin(), tests.end(), isShown))
        return;
    m_tests.clear();
    for (const TestData& test : tests)
        if (!vxConstitutive::abscissaMeasures(test.mode).empty()) {
            m_tests.push_back(keptTest(test));
            m_tests.back().keeper = m_followed;
        }
    noteChange();
}

void FitTests::noteKept(const Mat::MaterialObject& material, const KeptText& kept)
{
    m_cache.store(kept);
    if (placeOf(material) == m_followed)
        m_keptThere = kept.measurements;
    for (LoadedTest& test : m_tests)
        if (isAmong(test, testsOf(kept.measurements.get()))) {
            test.isKept = true;
            test.keeper = placeOf(material);
        }
}

void FitTests::noteRemoved(const Mat::MaterialObject& material, const KeptText& kept)
{
    if (!kept.text.empty())
        m_cache.store(kept);
    if (placeOf(material) == m_followed)
        m_keptThere = kept.text.empty() ? nullptr : kept.measurements;
}

Mat::MaterialObject* materialAt(const RowPlace& place)
{
    const Obj::Project* const project =
        place.isSet() ? Obj::Application::instance().get_project(place.projectId) : nullptr;
    return project != nullptr ? dynamic_cast<Mat::MaterialObject*>(project->get_object(place.objectId)) : nullptr;
}

RowPlace placeOf(const Mat::MaterialObject& material)
{
    return {material.get_project()->getProjectId(), material.getObjectId(), 0};
}

} // namespace vxInspector
