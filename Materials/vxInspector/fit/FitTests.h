#pragma once

#include "fit/LoadedTest.h"
#include "measured/KeptMeasurements.h"
#include "table/TableContent.h"

#include <QObject>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace vxInspector {

class BesideJob;

/// The tests of the tab of the fits: those that the selected material keeps, and the user's own ones. Own tests stay while the
/// user selects other materials, until a material keeps them. Long tables are read beside the interface.
class FitTests : public QObject
{
    Q_OBJECT

public:
    /// `cache` reads the measurements of materials. It must outlive this object.
    explicit FitTests(MeasurementsCache& cache, QObject* parent = nullptr);
    ~FitTests() override;

    const std::vector<LoadedTest>& all() const { return m_tests; }
    /// Returns a number that changes with the tests.
    std::size_t revision() const { return m_revision; }
    /// Returns a test; null if there is no such row.
    const LoadedTest* at(int row) const;
    /// Returns the tests that are read.
    std::vector<const vxConstitutive::TestData*> data() const;
    bool hasOwn() const;

    /// Adds a test; gives it another name if a test has the name.
    void add(LoadedTest test);
    /// Adds a test with the table in a text, which is read beside the interface if it is long.
    void addText(const QString& name, std::string text);
    /// Takes a test out of the list. A material that keeps it goes on keeping it.
    void takeOut(int row);
    /// Changes a test and reads it again. It is then the user's own.
    void change(int row, const std::function<void(LoadedTest&)>& change);

    /// Shows the tests that a material keeps, unless there are own tests. Takes note of the tests that materials have come to
    /// keep or do not keep any more, as by Undo.
    void follow(const Mat::MaterialObject& material);
    /// Takes note of the tests that materials have come to keep or do not keep any more.
    void checkKept();
    /// Takes note that a material is about to keep these measurements.
    void noteKept(const Mat::MaterialObject& material, const KeptText& kept);
    /// Takes note that a material is about to keep fewer measurements, or none. Shows no tests in their place.
    void noteRemoved(const Mat::MaterialObject& material, const KeptText& kept);
    /// Returns the place of the material that is followed; not set if there was none.
    const RowPlace& followed() const { return m_followed; }
    /// Returns what the followed material keeps; null if that is nothing, or is being read.
    const KeptMeasurements* keptThere() const { return m_keptThere.get(); }

    /// Returns whether a table is being read that will be a test.
    bool isLoading() const { return !m_loading.empty() || m_isReadingKept; }
    /// Returns the number of tables that the user has chosen and that are being read.
    std::size_t loadingCount() const { return m_loading.size(); }
    /// Returns whether a table or a test is being read.
    bool isReading() const;

Q_SIGNALS:
    void changed();       ///< sent after the tests have changed: earlier results are not theirs
    void added(int row);  ///< sent after changed() if a test has been added
    void readingBegins(); ///< sent when a table begins to be read

private:
    /// A test whose file is read beside the interface.
    struct Loading
    {
        LoadedTest test;
        bool isDone = false;
    };

    void noteChange();
    void runBeside(std::function<void()> work, std::function<void()> whenDone);
    void takeLoaded();
    void readBeside(LoadedTest& test);
    void takeReading(const std::shared_ptr<vxConstitutive::TestReading>& reading);
    void showKept();
    std::string freeName(const std::string& name) const;

    MeasurementsCache& m_cache;
    std::vector<LoadedTest> m_tests;
    std::size_t m_revision = 0;
    std::vector<std::shared_ptr<Loading>> m_loading; ///< in the order in which the user has chosen them
    std::vector<std::unique_ptr<BesideJob>> m_jobs;
    RowPlace m_followed;                                 ///< the material whose tests are shown
    std::shared_ptr<const KeptMeasurements> m_keptThere; ///< by that material; null if there are none
    bool m_isReadingKept = false;                        ///< whether its measurements are being read
};

/// Returns the material at a place; null if there is none.
Mat::MaterialObject* materialAt(const RowPlace& place);
/// Returns the place of a material.
RowPlace placeOf(const Mat::MaterialObject& material);

} // namespace vxInspector
