#pragma once

#include "fit/LoadedTest.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace vxInspector {

class FitTests;

/// The fields of a test: which test it is, its columns, what they measure and their units, the stress of a creep test, and the
/// weight. Below are lines that say what was understood. Each change of the user reads the test again.
class TestForm : public QWidget
{
    Q_OBJECT

public:
    /// `tests` must outlive the widget.
    explicit TestForm(FitTests& tests, QWidget* parent = nullptr);
    ~TestForm() override;

    /// Shows a row of the tests; hides the form if there is no such row.
    void showTest(int row);
    void retranslate();

private:
    /// The controls of one axis of a test.
    struct AxisControls
    {
        QLabel* label;
        QComboBox* column;
        QComboBox* measure;
        QLineEdit* unit;
    };
    using Choice = vxConstitutive::ColumnChoice vxConstitutive::TestReadRequest::*;
    using Understood = vxConstitutive::ColumnChoice vxConstitutive::TestReading::*;

    AxisControls makeAxis(const char* name);
    void layOut();
    void addAxis(QGridLayout& grid, int row, const AxisControls& axis) const;
    void connectAxis(const AxisControls& axis, Choice choice);
    void retranslateAxis(const AxisControls& axis, const QString& label) const;
    void readAxis(const AxisControls& axis, Choice choice);
    void readFields();
    void showAxis(const AxisControls& axis, const LoadedTest& test, Choice choice, Understood understood,
                  const std::vector<vxConstitutive::Measure>& measures) const;

    FitTests& m_tests;
    int m_row = -1;
    QLabel* m_modeLabel;
    QComboBox* m_mode;
    AxisControls m_abscissa;
    AxisControls m_ordinate;
    QLabel* m_stressLabel;
    QLineEdit* m_stress;
    QLabel* m_weightLabel;
    QLineEdit* m_weight;
    QLabel* m_preview;
};

} // namespace vxInspector
