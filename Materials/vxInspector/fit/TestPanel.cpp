#include "fit/TestPanel.h"

#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "fit/FitApplying.h"
#include "fit/FitTables.h"
#include "fit/FitTests.h"
#include "fit/TestFiles.h"
#include "fit/TestForm.h"
#include "table/ContentView.h"
#include "table/ViewHeight.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vxInspector {

namespace {

constexpr int mostLines = 12; // of the table of tests

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QString labelOf(const Mat::MaterialObject& material)
{
    return shortened(QString::fromStdString(material.label.getValue()), 30);
}

/// A text of a menu, in which & marks a key.
QString inMenu(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// Returns whether the followed material keeps tests or records of fits.
bool keepsSomething(const FitTests& tests)
{
    const KeptMeasurements* const kept = tests.keptThere();
    return kept != nullptr && !kept->measurements.empty() && materialAt(tests.followed()) != nullptr;
}

} // namespace

TestPanel::TestPanel(FitTests& tests, QWidget* parent)
    : QWidget(parent),
      m_tests(tests),
      m_load(makeButton(this, "fitLoad")),
      m_paste(makeButton(this, "fitPaste")),
      m_remove(makeButton(this, "fitRemove")),
      m_removeMenu(new QMenu(m_remove)),
      m_view(new ContentView(this)),
      m_form(new TestForm(tests, this))
{
    m_view->setObjectName(QStringLiteral("fitTests"));
    m_removeMenu->setObjectName(QStringLiteral("fitRemoveMenu"));
    layOut();
    connectControls();
    retranslate();
}

TestPanel::~TestPanel() = default;

void TestPanel::layOut()
{
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_load, m_paste, m_remove})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(m_view);
    layout->addWidget(m_form);
}

void TestPanel::connectControls()
{
    const auto guard = [this](void (TestPanel::*action)()) {
        return [this, action] {
            Kelta::guarded(tr("The test data cannot be used"), [this, action] { (this->*action)(); });
        };
    };
    connect(m_load, &QPushButton::clicked, this, guard(&TestPanel::load));
    connect(m_paste, &QPushButton::clicked, this, guard(&TestPanel::paste));
    connect(m_remove, &QPushButton::clicked, this, guard(&TestPanel::remove));
    connect(m_removeMenu, &QMenu::aboutToShow, this, guard(&TestPanel::fillRemoveMenu));
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, guard(&TestPanel::showCurrent));
    connect(&m_tests, &FitTests::changed, this, guard(&TestPanel::showTests));
    connect(&m_tests, &FitTests::added, this, [this](int row) {
        m_view->setCurrentIndex(m_view->model()->index(row, 0));
        showCurrent();
    });
}

void TestPanel::retranslate()
{
    m_load->setText(tr("&Load…"));
    m_load->setToolTip(tr("Load test data from a file with columns of numbers"));
    m_paste->setText(tr("&Paste"));
    m_paste->setToolTip(tr("Take columns of numbers from the clipboard"));
    m_remove->setText(tr("&Remove"));
    m_view->setAccessibleName(tr("Tests"));
    m_view->retranslate();
    m_form->retranslate();
    showTests();
}

void TestPanel::load()
{
    const QStringList paths = Gui::FileDialog::getOpenFileNames(
        this, tr("Load test data"), {}, tr("Test data (*.csv *.txt *.dat *.tsv);;All files (*)"));
    for (const QString& path : paths)
        Kelta::guarded(tr("The test data cannot be used"),
                       [this, &path] { m_tests.addText(QFileInfo(path).completeBaseName(), readTestFile(path)); });
}

void TestPanel::paste()
{
    const QString text = QApplication::clipboard()->text();
    if (!text.isEmpty())
        m_tests.addText(tr("Test %1").arg(m_tests.all().size() + m_tests.loadingCount() + 1), text.toStdString());
}

int TestPanel::currentRow() const
{
    return m_view->currentIndex().row();
}

void TestPanel::showTests()
{
    const int row = currentRow();
    m_view->setContent(testTable(m_tests.all()));
    m_view->setHidden(m_tests.all().empty());
    if (!m_tests.all().empty() && !m_view->currentIndex().isValid())
        m_view->setCurrentIndex(
            m_view->model()->index(std::clamp(row, 0, static_cast<int>(m_tests.all().size()) - 1), 0));
    fitHeight(*m_view, mostLines);
    showCurrent();
}

void TestPanel::showCurrent()
{
    m_form->showTest(currentRow());
    showRemovals();
}

/// Rows are higher in a narrow table.
void TestPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    fitHeight(*m_view, mostLines);
}

/// The button has a menu only if a material keeps what could be removed.
void TestPanel::showRemovals()
{
    const LoadedTest* const test = m_tests.at(currentRow());
    const bool hasChoice = keepsSomething(m_tests) || (test != nullptr && test->isKept);
    m_remove->setMenu(hasChoice ? m_removeMenu : nullptr);
    m_remove->setEnabled(test != nullptr || hasChoice);
    m_remove->setToolTip(hasChoice ? tr("Take the test out of this tab, or remove what the material keeps")
                                   : tr("Take the test out of this tab"));
}

/// The actions are made when the menu opens: labels change.
void TestPanel::fillRemoveMenu()
{
    m_removeMenu->clear();
    const auto add = [this](const QString& text, void (TestPanel::*removal)()) {
        QAction* const action = m_removeMenu->addAction(inMenu(text));
        connect(action, &QAction::triggered, this, [this, removal] {
            Kelta::guarded(tr("The test data cannot be used"), [this, removal] { (this->*removal)(); });
        });
    };
    const LoadedTest* const test = m_tests.at(currentRow());
    const Mat::MaterialObject* const keeper = test != nullptr && test->isKept ? materialAt(test->keeper) : nullptr;
    if (test != nullptr)
        add(tr("Test \"%1\" from this tab").arg(shortened(QString::fromStdString(test->request.name), 30)),
            &TestPanel::remove);
    if (keeper != nullptr)
        add(tr(R"(Test "%1" from the material "%2")")
                .arg(shortened(QString::fromStdString(test->request.name), 30), labelOf(*keeper)),
            &TestPanel::removeFromMaterial);
    if (keepsSomething(m_tests))
        add(tr("All tests and records of fits from the material \"%1\"").arg(labelOf(*materialAt(m_tests.followed()))),
            &TestPanel::removeAllFromMaterial);
}

void TestPanel::remove()
{
    m_tests.takeOut(currentRow());
}

void TestPanel::removeFromMaterial()
{
    const int row = currentRow();
    const LoadedTest* const test = m_tests.at(row);
    Mat::MaterialObject* const material = test != nullptr ? materialAt(test->keeper) : nullptr;
    if (material == nullptr)
        return;
    const std::string name = test->request.name;
    const QString shownName = shortened(QString::fromStdString(name), 30);
    const QString label = labelOf(*material);
    const KeptText kept = withoutTest(material->getSetting(vxConstitutive::measurementsSetting), name);
    m_tests.takeOut(row);
    m_tests.noteRemoved(*material, kept);
    setMeasurements(*material, kept.text, tr(R"(Remove test "%1" from "%2")").arg(shownName, label));
    Gui::MainWindow::announce(
        tr(R"("%1" does not keep the test "%2" any more. Undo brings it back.)").arg(label, shownName));
}

/// Tests of the user stay.
void TestPanel::removeAllFromMaterial()
{
    Mat::MaterialObject* const material = materialAt(m_tests.followed());
    if (material == nullptr)
        return;
    const QString label = labelOf(*material);
    for (int row = static_cast<int>(m_tests.all().size()) - 1; row >= 0; --row)
        if (m_tests.at(row)->isKept && m_tests.at(row)->keeper == m_tests.followed())
            m_tests.takeOut(row);
    m_tests.noteRemoved(*material, {});
    setMeasurements(*material, {}, tr("Remove tests and fits from \"%1\"").arg(label));
    Gui::MainWindow::announce(tr("\"%1\" keeps no tests any more. Undo brings them back.").arg(label));
}

} // namespace vxInspector
