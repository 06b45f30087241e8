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
#include <stdexcept>
#include <string>
#include <vector>

/// Readable texts in failures.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace vxtest {

/// A material project with one material object, which is structural steel.
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

/// An editor window in the main window of the program, and the actions of a user in it.
class Editor
{
public:
    Editor();
    /// Changes the project before the window is made.
    explicit Editor(const std::function<void(MaterialProject&)>& prepare);

    MaterialProject& project() { return m_project; }
    vxMat::CMaterial& material() { return m_project.material(); }
    /// Returns null if the window is closed.
    MatGui::MaterialView* view() const { return m_view; }
    /// Waits until the window is closed.
    bool isClosed() const;

    /// Returns the widget or layout with this object name. Fails the test if there is none of this class.
    template <class Child>
    Child& child(const char* name) const
    {
        auto* const found = m_view->findChild<Child*>(QLatin1String(name));
        if (found == nullptr)
            throw std::logic_error(std::string("the editor has no ") + name);
        return *found;
    }
    MatGui::SheetTableView& table() const { return child<MatGui::SheetTableView>("tableView"); }
    QListWidget& list(const char* name) const { return child<QListWidget>(name); }
    /// Returns the item with this text in one of the lists. Fails the test if there is none.
    QListWidgetItem* item(const QString& text) const;

    /// Brings the page of a list to the front by clicks on tab and tool box.
    void turnTo(QListWidget& list);
    void click(const char* button);
    void select(QListWidgetItem* item);
    void doubleClick(QListWidgetItem* item);
    /// Clicks the check box of the item.
    void tickByMouse(QListWidgetItem* item);
    void tickBySpace(QListWidgetItem* item);

    int rowCount() const { return table().model()->rowCount(); }
    QString cell(int row, int column) const;
    /// Returns the ids of the rows from top to bottom.
    std::vector<int> rowIds() const;
    /// Returns the row with this id; -1 if there is none.
    int rowOf(int id) const;
    /// Opens the value in the row with this id by the keyboard and returns its editor; null if no editor opens.
    QLineEdit* openValue(int id);
    /// Opens the value in the row with this id and types a text in place of the earlier text, without committing it.
    void startTyping(int id, const QString& text);
    /// Types a value into the row with this id in place of the earlier value and presses Return.
    void typeValue(int id, const QString& text);

private:
    MaterialProject m_project;
    Gui::MainWindow m_mainWindow;
    QPointer<MatGui::MaterialView> m_view;
};

/// Returns the editor that is open in a cell of the table; null if there is none.
QLineEdit* openEditor(const QAbstractItemView& view);

/// Returns the methods of this kind that a class itself declares, in their order: "on_btnOK_clicked()".
QStringList ownMethods(const QMetaObject& meta, QMetaMethod::MethodType kind);

/// The values of a property.
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

/// Texts in another language, by "context|comment|source text".
using Translations = std::map<std::string, QString>;

/// Translates only the given texts.
class TestTranslator : public QTranslator
{
public:
    /// Installs the translator as long as it exists.
    explicit TestTranslator(Translations texts);
    ~TestTranslator() override;
    TestTranslator(const TestTranslator&) = delete;
    TestTranslator& operator=(const TestTranslator&) = delete;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment, int n) const override;

private:
    Translations m_texts;
};

/// Fails the test if Qt logs a warning as long as the object exists.
class NoQtWarnings
{
public:
    NoQtWarnings();
    ~NoQtWarnings();
    NoQtWarnings(const NoQtWarnings&) = delete;
    NoQtWarnings& operator=(const NoQtWarnings&) = delete;
};

} // namespace vxtest
