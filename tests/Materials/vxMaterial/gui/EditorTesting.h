#pragma once

#include "Waiting.h"

#include "Gui/MainWindow.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QListWidget>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTranslator>

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

/// Readable texts in failures.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace vxtest {

/// A material project with one material object, structural steel at first.
class MaterialProject
{
public:
    MaterialProject();
    MaterialProject(const MaterialProject&) = delete;
    MaterialProject& operator=(const MaterialProject&) = delete;
    ~MaterialProject();

    Mat::DocumentMaterial& document() const { return *m_document; }
    Mat::MaterialObject& object() const { return *m_object; }
    vxMat::CMaterial& material() const { return *m_object->getCMaterial(); }
    vxMat::MatDBManager& database() const { return m_document->getMatMgr(); }

private:
    Mat::DocumentMaterial* m_document;
    Mat::MaterialObject* m_object;
};

/// What a user does at an editor window inside the main window of the program.
class Editor
{
public:
    Editor();
    /// Changes the project before the window is made.
    explicit Editor(const std::function<void(MaterialProject&)>& prepare);

    MaterialProject& project() { return m_project; }
    vxMat::CMaterial& material() { return m_project.material(); }
    /// Null when it has been closed.
    MatGui::MaterialView* view() const { return m_view; }
    /// Waits until the window has been closed.
    bool isClosed() const;

    template <class Child>
    Child& child(const char* name) const
    {
        return *m_view->findChild<Child*>(QLatin1String(name));
    }
    MatGui::SheetTableView& table() const { return child<MatGui::SheetTableView>("tableView"); }
    QListWidget& list(const char* name) const { return child<QListWidget>(name); }
    /// The item with this text, wherever it is.
    QListWidgetItem* item(const QString& text) const;

    /// Brings the page of a list to the front, as clicks on tab and tool box do.
    void turnTo(QListWidget& list);
    void click(const char* button);
    void select(QListWidgetItem* item);
    void doubleClick(QListWidgetItem* item);
    /// A click on the check box of the item.
    void tickByMouse(QListWidgetItem* item);
    void tickBySpace(QListWidgetItem* item);

    int rowCount() const { return table().model()->rowCount(); }
    QString cell(int row, int column) const;
    /// The ids of the rows from top to bottom.
    std::vector<int> rowIds() const;
    /// The row of this id; -1 when there is none.
    int rowOf(int id) const;
    /// Types a value into the row of this id, replacing what was there, and presses Return.
    void typeValue(int id, const QString& text);

private:
    MaterialProject m_project;
    Gui::MainWindow m_mainWindow;
    QPointer<MatGui::MaterialView> m_view;
};

/// The editor that is open in a cell of the table; null when there is none.
QLineEdit* openEditor(const QAbstractItemView& view);

/// The methods of a class itself of this kind, in their order: "on_btnOK_clicked()".
QStringList ownMethods(const QMetaObject& meta, QMetaMethod::MethodType kind);

/// What a property holds, to be compared with another.
struct Held
{
    double value;
    std::string text;
    std::vector<double> values;
    bool operator==(const Held& other) const
    {
        return value == other.value && text == other.text && values == other.values;
    }
};
std::map<int, Held> contents(const vxMat::MaterialBase& material);

/// Texts in another language, by "context|comment|text".
using Translations = std::map<std::string, QString>;

/// Translates these texts and no others.
class TestTranslator : public QTranslator
{
public:
    /// Installed while it lives.
    explicit TestTranslator(Translations texts);
    ~TestTranslator() override;
    TestTranslator(const TestTranslator&) = delete;
    TestTranslator& operator=(const TestTranslator&) = delete;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment, int n) const override;

private:
    Translations m_texts;
};

/// Fails the test when Qt warns of anything while it lives.
class NoQtWarnings
{
public:
    NoQtWarnings();
    ~NoQtWarnings();
    NoQtWarnings(const NoQtWarnings&) = delete;
    NoQtWarnings& operator=(const NoQtWarnings&) = delete;
};

} // namespace vxtest
