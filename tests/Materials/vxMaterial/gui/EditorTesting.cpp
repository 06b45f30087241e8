#include "EditorTesting.h"

#include "Gui/GuiApplication.h"
#include "Obj/Application.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QApplication>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QToolBox>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gtest/gtest.h>

namespace vxtest {

MaterialProject::MaterialProject()
{
    initMat();
    initMatGui();
    Mat::registerRequests();
    m_document = static_cast<Mat::DocumentMaterial*>(
        Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials"));
    m_object = static_cast<Mat::MaterialObject*>(m_document->add_object("Mat::MaterialObject", "Steel"));
    m_object->initCMaterial(vxMat::eMaterialType::StructuralSteel);
}

MaterialProject::~MaterialProject()
{
    Obj::Application::instance().closeProject(*m_document);
}

Editor::Editor() : Editor([](MaterialProject&) {}) {}

Editor::Editor(const std::function<void(MaterialProject&)>& prepare)
{
    prepare(m_project);
    m_view = new MatGui::MaterialView(Gui::GuiApplication::Instance->get_project(&m_project.document()),
                                      &m_project.object(), &m_mainWindow);
    m_mainWindow.resize(1100, 800);
    m_mainWindow.add_mdi_window(m_view);
    m_view->parentWidget()->resize(1000, 700);
    m_mainWindow.show();
    EXPECT_TRUE(vxtest::waitUntilActive(&m_mainWindow));
}

bool Editor::isClosed() const
{
    return vxtest::waitFor([this] { return m_view == nullptr; });
}

QListWidgetItem* Editor::item(const QString& text) const
{
    for (const QListWidget* const list : m_view->findChildren<QListWidget*>())
        for (QListWidgetItem* const found : list->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive))
            return found;
    throw std::logic_error("the editor has no item \"" + text.toStdString() + '"');
}

void Editor::turnTo(QListWidget& list)
{
    QWidget* const page = list.parentWidget();
    QToolBox* box = nullptr;
    for (QWidget* parent = page; box == nullptr; parent = parent->parentWidget())
        box = qobject_cast<QToolBox*>(parent);
    auto& tabs = child<QTabWidget>("tabWidget");
    const int tab = tabs.indexOf(box->parentWidget());
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab).center());
    const auto buttons = box->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    QTest::mouseClick(buttons[box->indexOf(page)], Qt::LeftButton);
    EXPECT_EQ(box->currentWidget(), page);
    EXPECT_TRUE(list.isVisible());
    // The tool box sets the size of the page in its layout.
    QCoreApplication::sendPostedEvents();
}

void Editor::click(const char* button)
{
    QTest::mouseClick(&child<QPushButton>(button), Qt::LeftButton);
}

void Editor::select(QListWidgetItem* item)
{
    QListWidget& list = *item->listWidget();
    turnTo(list);
    list.scrollToItem(item);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
    EXPECT_EQ(list.currentItem(), item);
}

void Editor::doubleClick(QListWidgetItem* item)
{
    select(item);
    QWidget* const viewport = item->listWidget()->viewport();
    const QPoint position = item->listWidget()->visualItemRect(item).center();
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, position);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, position);
}

void Editor::tickByMouse(QListWidgetItem* item)
{
    QListWidget& list = *item->listWidget();
    turnTo(list);
    list.scrollToItem(item);
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = list.visualItemRect(item);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center());
}

void Editor::tickBySpace(QListWidgetItem* item)
{
    QListWidget& list = *item->listWidget();
    turnTo(list);
    list.setFocus(Qt::TabFocusReason);
    list.setCurrentItem(item);
    QTest::keyClick(&list, Qt::Key_Space);
}

QString Editor::cell(int row, int column) const
{
    return table().model()->index(row, column).data(Qt::DisplayRole).toString();
}

std::vector<int> Editor::rowIds() const
{
    std::vector<int> ids;
    for (int row = 0; row < rowCount(); ++row)
        ids.push_back(cell(row, 0).toInt());
    return ids;
}

int Editor::rowOf(int id) const
{
    const std::vector<int> ids = rowIds();
    const auto found = std::find(ids.begin(), ids.end(), id);
    return found != ids.end() ? static_cast<int>(found - ids.begin()) : -1;
}

QLineEdit* Editor::openValue(int id)
{
    MatGui::SheetTableView& sheet = table();
    sheet.setFocus();
    sheet.setCurrentIndex(sheet.model()->index(rowOf(id), 2));
    QTest::keyClick(&sheet, Qt::Key_F2);
    return openEditor(sheet);
}

void Editor::startTyping(int id, const QString& text)
{
    QLineEdit* const editor = openValue(id);
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClicks(editor, text);
}

void Editor::typeValue(int id, const QString& text)
{
    startTyping(id, text);
    QLineEdit* const editor = openEditor(table());
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_Return);
}

QLineEdit* openEditor(const QAbstractItemView& view)
{
    for (int row = 0; row < view.model()->rowCount(); ++row)
        for (int column = 0; column < view.model()->columnCount(); ++column)
            if (auto* const editor = qobject_cast<QLineEdit*>(view.indexWidget(view.model()->index(row, column))))
                return editor;
    return nullptr;
}

QStringList ownMethods(const QMetaObject& meta, QMetaMethod::MethodType kind)
{
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        if (meta.method(index).methodType() == kind)
            signatures << QString::fromLatin1(meta.method(index).methodSignature());
    return signatures;
}

std::map<int, Held> contents(const vxMat::MaterialBase& material)
{
    std::map<int, Held> held;
    for (const auto& [slot, property] : material.properties)
        held[slot] = {property->value, property->text, property->values};
    return held;
}

TestTranslator::TestTranslator(Translations texts) : m_texts(std::move(texts))
{
    QCoreApplication::installTranslator(this);
}

TestTranslator::~TestTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QString TestTranslator::translate(const char* context, const char* text, const char* comment, int /*n*/) const
{
    const auto found = m_texts.find(std::string(context) + '|' + (comment != nullptr ? comment : "") + '|' + text);
    return found != m_texts.end() ? found->second : QString();
}

namespace {

void failOnWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ADD_FAILURE() << "Qt warns: " << text.toStdString();
}

} // namespace

NoQtWarnings::NoQtWarnings()
{
    qInstallMessageHandler(failOnWarning);
}

NoQtWarnings::~NoQtWarnings()
{
    qInstallMessageHandler(nullptr);
}

} // namespace vxtest
