// The tab of the curves in the main window, as a user works with it.

#include "InspectorTesting.h"

#include "Gui/FileDialog.h"
#include "Gui/TreeSelectionSingleton.h"
#include "curves/CurvesPage.h"
#include "plot/PlotView.h"
#include "table/ContentView.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxMsg/MessageProxy.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QToolButton>
#include <QToolTip>
#include <QtTest/QtTestGui>
#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_picker.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using vxInspector::PlotView;
using vxtest::waitFor;
using Type = vxMat::eMaterialType;

class CurvesTab : public vxtest::InspectorTest
{
protected:
    vxInspector::CurvesPage& page() const { return *tabs().findChild<vxInspector::CurvesPage*>(); }
    PlotView& plot() const { return page().plot(); }

    Mat::MaterialObject& showRubber() const
    {
        Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", Type::Elastomer1);
        select({&seal});
        turnTo(Curves);
        EXPECT_TRUE(waitFor([this] { return !plot().plot().series.empty(); }));
        return seal;
    }

    std::string said() const { return page().findChild<QLabel*>(QStringLiteral("sentence"))->text().toStdString(); }

    bool becomesSaid(const std::string& text) const
    {
        return waitFor([&] { return said().find(text) != std::string::npos; });
    }

    std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const vxPlot::Series& series : plot().plot().series)
            all.push_back(series.name);
        return all;
    }

    double last(std::size_t series = 0) const { return plot().plot().series.at(series).y.back(); }

    template <class Widget>
    Widget& control(const char* name) const
    {
        return *page().findChild<Widget*>(QLatin1String(name));
    }

    /// Opens the menu of the tests and clicks an entry.
    void chooseMode(const char* text) const
    {
        auto& menu = control<QMenu>("curveModeMenu");
        menu.popup(control<QToolButton>("curveModes").mapToGlobal(QPoint()));
        for (QAction* const action : menu.actions())
            if (action->text() == QLatin1String(text))
                return QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        throw std::logic_error("there is no such test");
    }

    bool isChecked(const char* text) const
    {
        auto& menu = control<QMenu>("curveModeMenu");
        menu.popup(QPoint());
        const auto actions = menu.actions();
        const auto found = std::find_if(actions.begin(), actions.end(),
                                        [&](QAction* action) { return action->text() == QLatin1String(text); });
        const bool isOn = found != actions.end() && (*found)->isChecked();
        menu.close();
        return isOn;
    }

    /// Drags a rectangle over the middle of the plot.
    void dragRectangle() const
    {
        QWidget& canvas = *plot().canvas();
        const QPoint middle = canvas.rect().center();
        QTest::mousePress(&canvas, Qt::LeftButton, {}, middle - QPoint(20, 20));
        // QTest::mouseMove moves the cursor of the screen without a button.
        QMouseEvent move(QEvent::MouseMove, middle + QPoint(20, 20), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &move);
        QTest::mouseRelease(&canvas, Qt::LeftButton, {}, middle + QPoint(20, 20));
    }
};

TEST_F(CurvesTab, ShowsTheFindingsBelowThePlotAsWholeLines)
{
    Mat::MaterialObject& pad = addMaterial(newProject(), "Pad", Type::Elastomer2);
    setNumber(pad, Id::MaterialConstantC01, -0.05); // unstable in each test
    select({&pad});
    turnTo(Curves);
    auto& findings = control<vxInspector::ContentView>("curveFindings");
    ASSERT_TRUE(waitFor([&] { return findings.isVisible() && findings.model()->rowCount() >= 4; }));
    const int line = findings.fontMetrics().lineSpacing();
    const auto isWhole = [&] { return findings.height() >= std::min(findings.verticalHeader()->length(), 11 * line); };
    EXPECT_TRUE(waitFor(isWhole)) << findings.height() << " of " << findings.verticalHeader()->length();
    window->resize(window->width(), 500);
    QCoreApplication::processEvents();
    EXPECT_TRUE(waitFor(isWhole)) << "also in a low window, whose tab scrolls";
    EXPECT_NEAR(plot().height(), plot().fontMetrics().lineSpacing() * 16, 20);
}

TEST_F(CurvesTab, HasItsToolTipBesideTheCurvesOnly)
{
    showRubber();
    const auto showsToolTip = [](QWidget& widget) {
        QToolTip::hideText();
        const QPoint middle = widget.rect().center();
        QHelpEvent help(QEvent::ToolTip, middle, widget.mapToGlobal(middle));
        QApplication::sendEvent(&widget, &help);
        return !QToolTip::text().isEmpty();
    };
    EXPECT_FALSE(showsToolTip(*plot().canvas())) << "it would hide the curves";
    EXPECT_TRUE(showsToolTip(*plot().axisWidget(QwtPlot::yLeft)));
    QToolTip::hideText();
}

TEST_F(CurvesTab, ScrollsInsteadOfMakingALowWindowHigher)
{
    showRubber();
    const int needed = page().findChild<QScrollArea*>()->widget()->minimumSizeHint().height();
    EXPECT_LT(page().minimumSizeHint().height(), needed);
    EXPECT_GT(needed, plot().minimumSizeHint().height());
}

TEST_F(CurvesTab, ShowsTheCurvesOfTheSelectedMaterial)
{
    showRubber();
    EXPECT_THAT(names(), ElementsAre("uniaxial", "equibiaxial", "planar"));
    const auto* const legend = qobject_cast<QwtLegend*>(plot().legend());
    const auto labels = legend->findChildren<QwtLegendLabel*>();
    ASSERT_GE(labels.size(), 3);
    EXPECT_EQ(labels[0]->text().text(), "uniaxial");
}

TEST_F(CurvesTab, FollowsTypedTextBeforeItIsApplied)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    turnTo(Curves);
    ASSERT_TRUE(waitFor([this] { return !plot().plot().series.empty(); }));
    const double before = last();
    startTyping(editor, Id::YoungsModulus, "4e11");
    EXPECT_TRUE(waitFor([&] { return std::abs(last() / before - 2.0) < 1e-9; }));
    EXPECT_THAT(said(), HasSubstr("not applied"));
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 2e11);
}

TEST_F(CurvesTab, SaysWhatToDoIfThereIsNothingToDraw)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& air = addMaterial(project, "Air", Type::Air);
    select({&air});
    turnTo(Curves);
    EXPECT_TRUE(becomesSaid("It has no constants of a model with curves"));
    EXPECT_FALSE(plot().isVisible());
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    EXPECT_TRUE(becomesSaid("A project is selected. Select one or more materials to see their curves."));
    Gui::TreeSelectionSingleton::instance().clear();
    EXPECT_TRUE(becomesSaid("Select a material in the project explorer, or open its editor."));
}

TEST_F(CurvesTab, SaysHowManyOfManyMaterialsAreDrawn)
{
    Mat::DocumentMaterial& project = newProject();
    std::vector<Mat::MaterialObject*> many;
    for (int i = 0; i < 25; ++i)
        many.push_back(&addMaterial(project, "Steel " + std::to_string(i)));
    select(many);
    turnTo(Curves);
    EXPECT_TRUE(becomesSaid("Only the first 20 of 25 materials are shown."));
    EXPECT_EQ(names().size(), 20U);
}

TEST_F(CurvesTab, DrawsTheChosenTests)
{
    showRubber();
    chooseMode("equibiaxial tension");
    EXPECT_TRUE(waitFor([this] { return names() == std::vector<std::string>{"uniaxial", "planar"}; }));
    chooseMode("simple shear");
    EXPECT_TRUE(waitFor([this] { return plot().plot().x.name == "amount of shear"; }));
    EXPECT_EQ(control<QToolButton>("curveModes").text(), "simple shear");
    EXPECT_TRUE(isChecked("simple shear"));
    EXPECT_FALSE(isChecked("planar tension"));
    chooseMode("simple shear");
    QCoreApplication::processEvents();
    EXPECT_EQ(plot().plot().x.name, "amount of shear");
}

TEST_F(CurvesTab, ShowsTheTestsThatTheMaterialKeeps)
{
    Mat::MaterialObject& seal = showRubber();
    const std::string text = vxConstitutive::writeMeasurements(
        {{{"tension", vxConstitutive::Mode::Uniaxial, {1.5, 2.0, 7.0}, {1e6, 1.75e6, 3e6}}}, {}});
    EXPECT_TRUE(vxMsg::MessageProxy::instance().setSetting(seal, vxConstitutive::measurementsSetting, text));
    ASSERT_TRUE(waitFor([this] { return names().size() == 4; }));
    EXPECT_THAT(names(), ElementsAre("uniaxial", "equibiaxial (not measured)", "planar (not measured)", "tension"));
    EXPECT_EQ(plot().plot().series[3].kind, vxPlot::SeriesKind::Symbols);
    EXPECT_THAT(plot().plot().series[3].y, ElementsAre(1e6, 1.75e6, 3e6));
    EXPECT_DOUBLE_EQ(plot().plot().series[0].x.back(), 7.6); // a tenth more than measured
    history().undo();
    EXPECT_TRUE(waitFor([this] { return names().size() == 3; }));
}

TEST_F(CurvesTab, TellsThatKeptTestsCannotBeRead)
{
    Mat::MaterialObject& seal = showRubber();
    EXPECT_TRUE(vxMsg::MessageProxy::instance().setSetting(seal, vxConstitutive::measurementsSetting, "{"));
    EXPECT_TRUE(waitFor([this] {
        const QAbstractItemModel& findings = *page().findings().model();
        for (int row = 0; row < findings.rowCount(); ++row)
            if (findings.index(row, 1).data().toString().startsWith(QLatin1String("The kept tests cannot be read")))
                return findings.index(row, 0).data().toString() == QLatin1String("Error");
        return false;
    }));
    EXPECT_EQ(names().size(), 3U);
}

TEST_F(CurvesTab, DrawsTheChosenRangeAndQuantity)
{
    showRubber();
    auto& from = control<QLineEdit>("curveFrom");
    auto& to = control<QLineEdit>("curveTo");
    EXPECT_FALSE(to.placeholderText().isEmpty());
    QTest::keyClicks(&from, "1");
    QTest::keyClicks(&to, "150 %");
    EXPECT_TRUE(waitFor([this] { return plot().plot().series.at(0).x.back() == 1.5; }));
    EXPECT_EQ(plot().plot().series.at(0).x.front(), 1.0);
    const double nominal = last();
    auto& ordinates = control<QComboBox>("curveOrdinates");
    ordinates.setFocus();
    QTest::keyClick(&ordinates, Qt::Key_Down);
    EXPECT_TRUE(waitFor([this] { return plot().plot().y.name == "true stress"; }));
    EXPECT_GT(last(), nominal);
    QTest::keyClicks(&to, "x");
    EXPECT_TRUE(waitFor([&] { return !to.toolTip().isEmpty(); }));
    EXPECT_GT(plot().plot().series.at(0).x.back(), 1.5);
}

TEST_F(CurvesTab, FollowsTheUnitSystem)
{
    showRubber();
    ASSERT_EQ(plot().plot().y.unit, "Pa");
    const double inPascal = last();
    auto& systems = *window->findChild<QComboBox*>(QStringLiteral("inspectorUnits"));
    systems.setCurrentIndex(systems.findText(QStringLiteral("mm-t-s")));
    EXPECT_EQ(plot().plot().y.unit, "MPa");
    EXPECT_NEAR(last() * 1e6, inPascal, 1e-6 * inPascal);
}

TEST_F(CurvesTab, HasLogarithmicAxes)
{
    showRubber();
    QTest::mouseClick(&control<QToolButton>("curveLogY"), Qt::LeftButton);
    EXPECT_EQ(plot().plot().y.scale, vxPlot::Scale::Logarithmic);
    EXPECT_GT(plot().axisInterval(QwtPlot::yLeft).minValue(), 0.0);
    QTest::mouseClick(&control<QToolButton>("curveLogY"), Qt::LeftButton);
    EXPECT_EQ(plot().plot().y.scale, vxPlot::Scale::Linear);
}

TEST_F(CurvesTab, HidesACurveByAClickOnTheLegend)
{
    showRubber();
    const auto label = [this] { return plot().legend()->findChildren<QwtLegendLabel*>().at(0); };
    QCoreApplication::processEvents();
    QTest::mouseClick(label(), Qt::LeftButton, {}, label()->rect().center());
    EXPECT_TRUE(plot().isHidden("uniaxial"));
    EXPECT_EQ(plot().shownPlot().series.size(), 2U);
    EXPECT_TRUE(label()->text().font().strikeOut());
    QTest::mouseClick(label(), Qt::LeftButton, {}, label()->rect().center());
    EXPECT_EQ(plot().shownPlot().series.size(), 3U);
}

TEST_F(CurvesTab, ZoomsAndShowsEverythingAgain)
{
    Mat::MaterialObject& seal = showRubber();
    QCoreApplication::processEvents();
    auto& reset = control<QToolButton>("curveReset");
    EXPECT_FALSE(reset.isEnabled());
    const double whole = plot().axisInterval(QwtPlot::xBottom).width();
    dragRectangle();
    EXPECT_LT(plot().axisInterval(QwtPlot::xBottom).width(), 0.7 * whole);
    const QwtInterval zoomed = plot().axisInterval(QwtPlot::xBottom);
    setNumber(seal, Id::Density, 1234.0);
    seal.refreshProperties(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(plot().axisInterval(QwtPlot::xBottom), zoomed);
    QTest::mouseClick(&reset, Qt::LeftButton);
    EXPECT_DOUBLE_EQ(plot().axisInterval(QwtPlot::xBottom).width(), whole);
    plot().setFocus();
    QTest::keyClick(&plot(), Qt::Key_Plus);
    EXPECT_TRUE(plot().isZoomed());
    QTest::keyClick(&plot(), Qt::Key_Home);
    EXPECT_FALSE(plot().isZoomed());
}

TEST_F(CurvesTab, ShowsNoRoundingErrorsBesideTheCrossHair)
{
    showRubber();
    QCoreApplication::processEvents();
    // Each pixel is a tenth, and 0 is on a pixel.
    for (int round = 0; round < 3; ++round) { // the labels of the axis change the canvas
        const QwtScaleMap map = plot().canvasMap(QwtPlot::yLeft);
        const double above = map.p1() - std::floor((map.p1() + map.p2()) / 2.0);
        plot().zoomTo(QRectF(1.0, -0.1 * above, 1.0, 0.1 * map.pDist()));
        QCoreApplication::processEvents();
    }
    const QwtPicker* const picker = plot().canvas()->findChild<QwtPicker*>();
    ASSERT_NE(picker, nullptr);
    bool showsZero = false;
    for (int y = 0; y < plot().canvas()->height(); ++y) {
        const std::string text = picker->trackerText(QPoint(50, y)).text().toStdString();
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("e-1")));
        showsZero = showsZero || text.find(", 0 ") != std::string::npos;
    }
    EXPECT_TRUE(showsZero);
}

TEST_F(CurvesTab, CopiesPictureAndTable)
{
    showRubber();
    plot().setFocus();
    plot().copyPicture();
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    plot().copyTable();
    EXPECT_THAT(QApplication::clipboard()->text().section('\n', 0, 0).toStdString(),
                HasSubstr("stretch [1]\tuniaxial: nominal stress [Pa]\tequibiaxial"));
}

TEST_F(CurvesTab, SavesPicturesAndTables)
{
    showRubber();
    const QTemporaryDir folder;
    const auto saved = [&](const char* name) {
        const QString path = folder.filePath(QLatin1String(name));
        Gui::FileDialog::answerNext(path);
        QTest::mouseClick(&control<QToolButton>("curveSave"), Qt::LeftButton);
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    };
    EXPECT_FALSE(QImage::fromData(saved("a.png")).isNull());
    EXPECT_THAT(saved("a.svg").toStdString(), HasSubstr("nominal stress [Pa]"));
    EXPECT_EQ(saved("a.pdf").left(5), "%PDF-");
    const QList<QByteArray> lines = saved("a.csv").split('\n');
    EXPECT_EQ(lines.size(), 203);
    EXPECT_EQ(lines[1].split(',').size(), 4);
    EXPECT_EQ(lines[1].split(',')[1].toDouble(), plot().plot().series[0].y[0]);
    EXPECT_EQ(saved("a.bmp"), "");
}

TEST_F(CurvesTab, IsReachedByTheKeyboardInTheOrderOfReading)
{
    showRubber();
    QWidget* const order[] = {&control<QToolButton>("curveModes"),
                              &control<QComboBox>("curveOrdinates"),
                              &control<QLineEdit>("curveFrom"),
                              &control<QLineEdit>("curveTo"),
                              &control<QToolButton>("curveLogX"),
                              &control<QToolButton>("curveLogY"),
                              &plot()};
    order[0]->setFocus();
    for (std::size_t i = 1; i < std::size(order); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), order[i]) << i;
    }
}

TEST_F(CurvesTab, DrawsCreepAtStressesThatAreTyped)
{
    Mat::MaterialObject& pipe = addMaterial(newProject(), "Pipe", Type::CreepMaterial1);
    select({&pipe});
    turnTo(Curves);
    ASSERT_TRUE(waitFor([this] { return plot().plot().series.size() == 3; }));
    auto& field = control<QLineEdit>("curveParameter");
    ASSERT_TRUE(field.isVisible());
    EXPECT_EQ(field.placeholderText().count(QLatin1Char(';')), 2) << field.placeholderText().toStdString();
    QTest::keyClicks(&field, "20 MPa");
    ASSERT_TRUE(waitFor([this] { return plot().plot().series.size() == 1; }));
    QTest::keyClicks(&field, "; soft");
    EXPECT_NE(field.palette().color(QPalette::Text), page().palette().color(QPalette::Text));
}

TEST_F(CurvesTab, HasNoFieldForParametersOfOtherCurves)
{
    showRubber();
    EXPECT_FALSE(control<QLineEdit>("curveParameter").isVisible());
}

} // namespace
