#pragma once

#include "MessageBoxes.h"
#include "Waiting.h"

#include "Gui/MainWindow.h"
#include "table/TableContent.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QLineEdit>
#include <QString>
#include <QTabWidget>
#include <QUndoStack>
#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace vxInspector {
class ContentView;
} // namespace vxInspector

namespace vxtest {

/// A test with the main window and the inspector, which the entry function of its module has added.
class InspectorTest : public testing::Test
{
protected:
    using Id = vxMat::PropertyId;

    enum Tab : int
    {
        Values,
        Findings,
        Cards,
        Compare,
        Curves,
        Fit,
    };

    InspectorTest();
    ~InspectorTest() override;

    static QUndoStack& history();
    static Mat::DocumentMaterial& newProject();
    static Mat::MaterialObject& addMaterial(Mat::DocumentMaterial& project, const std::string& label = "Steel",
                                            vxMat::eMaterialType type = vxMat::eMaterialType::StructuralSteel);
    static void select(const std::vector<Mat::MaterialObject*>& objects);
    static void setNumber(const Mat::MaterialObject& object, int id, double number);
    static double numberOf(const Mat::MaterialObject& object, int id);

    MatGui::MaterialView& edit(Mat::MaterialObject& object) const;
    static MatGui::SheetTableView& tableOf(const MatGui::MaterialView& editor);
    /// Opens the value of a quantity and types a text in place of the earlier one, without finishing it.
    static QLineEdit* startTyping(MatGui::MaterialView& editor, int id, const QString& text);

    /// Waits until the tabs exist.
    QTabWidget& tabs() const;
    void turnTo(Tab tab) const;
    vxInspector::ContentView& view(Tab tab) const;
    std::string sentence(Tab tab) const;
    /// Returns the shown cell; empty if it does not exist.
    std::string cell(Tab tab, int row, int column) const;
    /// Returns the first row whose text in a column begins with `text`; -1 if there is none.
    int findRow(Tab tab, const std::string& text, int column = 0) const;
    /// Waits until a row whose first cell is `name` has this text in a column.
    bool becomes(Tab tab, const std::string& name, int column, const std::string& text) const;
    /// Waits until the sentence contains a text.
    bool says(Tab tab, const std::string& text) const;

    std::unique_ptr<Gui::MainWindow> window;
};

/// Returns the texts of a row of a table.
std::vector<std::string> textsOf(const vxInspector::TableContent& table, std::size_t row);
/// Returns the first row whose cell in a column begins with `text`. Fails the test if there is none.
std::size_t rowOf(const vxInspector::TableContent& table, const std::string& text, std::size_t column = 0);

} // namespace vxtest
