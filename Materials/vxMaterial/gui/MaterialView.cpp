#include "vxMaterial/gui/MaterialView.h"

#include "CatalogueText.h"
#include "ui_MaterialWidget.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/MessageBox.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSignalBlocker>

#include <utility>

namespace MatGui {

namespace {

/// Slots are called by Qt, through which nothing may be thrown. Answers whether nothing was.
template <class Action>
bool guarded(const Action& action)
{
    try {
        action();
        return true;
    } catch (...) {
        Mat::showCritical(MaterialView::tr("Material editor"),
                          MaterialView::tr("Something went wrong: %1").arg(Kelta::currentExceptionText()));
        return false;
    }
}

/// The windows that are to close and whose changes are not applied.
struct Closing
{
    QPointer<MaterialView> asked; ///< whose question is open
    std::vector<QPointer<MaterialView>> waiting;
};

Closing& closingWindows()
{
    static Closing windows;
    return windows;
}

void closeCurrentWindow()
{
    if (Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst())
        mainWindow->close_current_window();
}

QString describe(const UnreadableRow& row)
{
    const QString text = row.reason == UnreadableRow::Reason::NoNumber
                             ? MaterialView::tr(R"(Row %1: The value "%2" of "%3" is not a number!)")
                             : MaterialView::tr(R"(Row %1: The value "%2" of "%3" is out of the range of numbers!)");
    return text.arg(QString::number(row.number), row.value, row.name);
}

Qt::CheckState checkState(bool checked)
{
    return checked ? Qt::Checked : Qt::Unchecked;
}

/// The list at `index` of pages by number, some of which have none; null outside.
QListWidget* listAt(std::initializer_list<QListWidget*> lists, int index)
{
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < lists.size();
    return inside ? lists.begin()[index] : nullptr;
}

/// Lets the keyboard reach the pages of a tool box, whose buttons Qt leaves to the mouse, and not the frames around
/// them. Each button comes before its page. Answers the last widget of the order that `before` begins.
QWidget* makeReachable(const QToolBox& box, QWidget* before)
{
    const QList<QAbstractButton*> buttons = box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QScrollArea* const frame : box.findChildren<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly))
        frame->setFocusPolicy(Qt::NoFocus);
    for (int page = 0; page < buttons.size(); ++page) {
        auto* const list = box.widget(page)->findChild<QListWidget*>();
        buttons[page]->setFocusPolicy(Qt::TabFocus);
        buttons[page]->setAccessibleName(list->accessibleName());
        QWidget::setTabOrder(before, buttons[page]);
        QWidget::setTabOrder(buttons[page], list);
        before = list;
    }
    return before;
}

} // namespace

KELTA_REGISTER_ABSTRACT_CLASS(MatGui::MaterialView, Gui::MDIWindow)

MaterialView::MaterialView(Gui::GuiProject* project, Obj::ProjectObject* object, QWidget* parent)
    : MDIWindow(project, parent), m_materialObject(static_cast<Mat::MaterialObject*>(object))
{
    initUI();
    preloadMaterialLibrary();
    preloadMaterialProperties();
    m_ui->tableView->materialObject = m_materialObject;
    m_ui->tableView->loadMaterialObject();
    // Last, so that what was checked above adds no rows.
    connectSignals();
    set_edited_object(object);
}

MaterialView::~MaterialView()
{
    // The table goes later, and its rows with it.
    m_ui->tableView->model()->disconnect(this);
    if (Gui::GuiApplication::Instance != nullptr)
        Gui::GuiApplication::Instance->disconnect_view(this);
    m_libraryItems.clear();
    m_propertyItems.clear();
}

void* MaterialView::create()
{
    return nullptr;
}

void MaterialView::initUI()
{
    m_ui = std::make_unique<Ui::MaterialWidget>();
    auto* const host = new QWidget(this);
    m_ui->setupUi(host);
    m_ui->splitter->setStretchFactor(0, 1);
    m_ui->splitter->setStretchFactor(1, 3);
    setCentralWidget(host);
    makeToolBoxesReachable();
}

void MaterialView::makeToolBoxesReachable()
{
    QWidget* const lastOfLibrary = makeReachable(*m_ui->toolBoxLibrary, m_ui->tabWidget);
    setTabOrder(lastOfLibrary, m_ui->btnAddMat);
    QWidget* const lastOfBuild = makeReachable(*m_ui->toolBoxBuild, m_ui->btnAddMat);
    setTabOrder(lastOfBuild, m_ui->tableView);
    // The window itself shows nothing that could have the keyboard.
    setFocusProxy(m_ui->tabWidget);
}

void MaterialView::connectSignals()
{
    connect(m_ui->tabWidget, SIGNAL(currentChanged(int)), this, SLOT(currentTagChangedSlot(int)));
    for (QListWidget* const list : libraryLists())
        connect(list, SIGNAL(itemDoubleClicked(QListWidgetItem*)), this,
                SLOT(on_material_double_clicked(QListWidgetItem*)));
    connect(m_ui->btnAddMat, SIGNAL(clicked()), this, SLOT(on_btnAddMat_clicked()));
    for (QListWidget* const list : buildLists()) {
        connect(list, SIGNAL(itemChanged(QListWidgetItem*)), this, SLOT(on_property_itemChanged(QListWidgetItem*)));
        connect(list, SIGNAL(itemDoubleClicked(QListWidgetItem*)), this,
                SLOT(on_property_double_clicked(QListWidgetItem*)));
    }
    connect(m_ui->btnOk, SIGNAL(clicked()), this, SLOT(on_btnOK_clicked()));
    connect(m_ui->btnApply, SIGNAL(clicked()), this, SLOT(on_btnApply_clicked()));
    connect(m_ui->btnCancel, SIGNAL(clicked()), this, SLOT(on_btnCancel_clicked()));
    connect(m_ui->btnClear, SIGNAL(clicked()), this, SLOT(on_btnClear_clicked()));
    markChanges();
}

void MaterialView::markChanges()
{
    // The title bears a mark, and the program asks before it ends, until what was changed is applied.
    const auto mark = [this] { setWindowModified(true); };
    const QAbstractItemModel* const model = m_ui->tableView->model();
    connect(model, &QAbstractItemModel::dataChanged, this, mark);
    connect(model, &QAbstractItemModel::rowsInserted, this, mark);
    connect(model, &QAbstractItemModel::rowsRemoved, this, mark);
}

std::vector<QListWidget*> MaterialView::libraryLists() const
{
    return {m_ui->lw_lib_general, m_ui->lw_lib_nonlinear, m_ui->lw_lib_hyper,
            m_ui->lw_lib_thermal, m_ui->lw_lib_em,        m_ui->lw_lib_acoustic};
}

std::vector<QListWidget*> MaterialView::buildLists() const
{
    return {m_ui->lw_build_basic, m_ui->lw_build_linear,       m_ui->lw_build_hyper, m_ui->lw_build_plastic,
            m_ui->lw_build_creep, m_ui->lw_build_viscoelastic, m_ui->lw_build_em};
}

QListWidget* MaterialView::libraryList(int group) const
{
    return listAt({m_ui->lw_lib_general, m_ui->lw_lib_general, m_ui->lw_lib_nonlinear, m_ui->lw_lib_hyper,
                   m_ui->lw_lib_thermal, nullptr, m_ui->lw_lib_em, m_ui->lw_lib_acoustic},
                  group);
}

QListWidget* MaterialView::buildList(int category) const
{
    // Thermal, acoustic and undefined quantities have no page.
    return listAt({m_ui->lw_build_basic, m_ui->lw_build_linear, m_ui->lw_build_hyper, m_ui->lw_build_plastic,
                   m_ui->lw_build_creep, m_ui->lw_build_viscoelastic, nullptr, m_ui->lw_build_em},
                  category);
}

void MaterialView::preloadMaterialLibrary()
{
    for (const auto& [type, material] : m_materialObject->getMatMgr().materials) {
        auto item = std::make_unique<QListWidgetItem>(translateMaterialName(material->name));
        m_libraryItems[item.get()] = material.get();
        if (QListWidget* const list = libraryList(material->libraryGroup))
            list->addItem(item.release());
        else
            m_itemsWithoutPage.push_back(std::move(item));
    }
}

void MaterialView::preloadMaterialProperties()
{
    const vxMat::CMaterial* const material = m_materialObject->getCMaterial();
    if (material == nullptr)
        return;
    for (const auto& [id, property] : m_materialObject->getMatMgr().propertyCatalogue) {
        QListWidget* const list = buildList(static_cast<int>(property->category));
        if (list == nullptr)
            continue;
        auto* const item = new QListWidgetItem(translatePropertyText(property->name, Text::name), list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(checkState(material->hasProperty(property->id)));
        m_propertyItems[item] = property.get();
    }
}

void MaterialView::updatePropertyList(vxMat::MaterialBase* material)
{
    if (material == nullptr)
        return;
    std::vector<std::unique_ptr<QSignalBlocker>> blockers;
    for (QListWidget* const list : buildLists())
        blockers.push_back(std::make_unique<QSignalBlocker>(list));
    for (const auto& [item, property] : m_propertyItems)
        if (property != nullptr)
            item->setCheckState(checkState(material->hasProperty(property->id)));
}

void MaterialView::on_material_double_clicked(QListWidgetItem* item)
{
    if (item == nullptr)
        return;
    guarded([&] {
        vxMat::MaterialBase* const material = m_libraryItems[item];
        // The table first: it shows the material wholly or not at all, and the check boxes follow it.
        m_ui->tableView->showMaterial(material);
        updatePropertyList(material);
    });
}

void MaterialView::on_btnAddMat_clicked()
{
    const QWidget* const page = m_ui->toolBoxLibrary->currentWidget();
    const auto* const list = page != nullptr ? page->findChild<QListWidget*>() : nullptr;
    if (list == nullptr)
        return;
    const QList<QListWidgetItem*> selected = list->selectedItems();
    if (selected.size() == 1)
        on_material_double_clicked(selected.front());
    else
        guarded([] { Mat::showCritical(tr("Invalid selection"), tr("Please selection one material.")); });
}

void MaterialView::on_property_itemChanged(QListWidgetItem* item)
{
    if (item == nullptr)
        return;
    const bool checked = item->checkState() == Qt::Checked;
    if (guarded([&] { m_ui->tableView->togglePropertyRow(checked, m_propertyItems[item]); }))
        return;
    // The check box must not claim a row that the table does not have.
    const QSignalBlocker blocker(item->listWidget());
    item->setCheckState(checkState(!checked));
}

void MaterialView::on_property_double_clicked(QListWidgetItem* item)
{
    if (item != nullptr)
        item->setCheckState(checkState(item->checkState() != Qt::Checked));
}

bool MaterialView::on_btnApply_clicked()
{
    bool applied = false;
    return guarded([&] { applied = apply(); }) && applied;
}

bool MaterialView::apply()
{
    SheetTableView& table = *m_ui->tableView;
    table.finishEditing();
    if (table.model()->rowCount() == 0) {
        Mat::showCritical(tr("Empty property"), tr("No property is defined."));
        return false;
    }
    QString message;
    if (!table.validateRows(message)) {
        Mat::showCritical(tr("Invalid material"), message);
        return false;
    }
    if (const auto row = table.findUnreadableRow()) {
        Mat::showCritical(tr("Invalid material"), describe(*row));
        return false;
    }
    table.applyToMaterial();
    setWindowModified(false);
    return true;
}

void MaterialView::on_btnOK_clicked()
{
    if (on_btnApply_clicked())
        guarded(closeCurrentWindow);
}

void MaterialView::on_btnCancel_clicked()
{
    // The button says by itself that the changes are not wanted.
    const QScopedValueRollback<bool> unasked(m_closesUnasked, true);
    guarded(closeCurrentWindow);
}

void MaterialView::on_btnClear_clicked()
{
    guarded([this] { clear(); });
}

void MaterialView::clear()
{
    // Each change removes the rows of its quantity.
    for (const QListWidget* const list : buildLists())
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->checkState() == Qt::Checked)
                list->item(row)->setCheckState(Qt::Unchecked);
    QAbstractItemModel& model = *m_ui->tableView->model();
    model.removeRows(0, model.rowCount());
}

void MaterialView::currentTagChangedSlot(int /*index*/) {}

void MaterialView::keyPressEvent(QKeyEvent* event)
{
    // Whoever edits values must not delete the material in the tree by a slip.
    if (event->key() == Qt::Key_Delete)
        event->accept();
    else
        MDIWindow::keyPressEvent(event);
}

bool MaterialView::event(QEvent* event)
{
    // A shortcut of the host on these keys would come before the key press.
    if (event->type() == QEvent::ShortcutOverride && keepsFromHost(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return MDIWindow::event(event);
}

bool MaterialView::keepsFromHost(const QKeyEvent& key) const
{
    if (key.key() == Qt::Key_Delete)
        return true;
    // Who means a value may take back the creation of the material, and this window with all changes would go.
    return isWindowModified() && (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo));
}

void MaterialView::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (m_closesUnasked)
        return;
    guarded([this, event] {
        m_ui->tableView->finishEditing();
        if (!isWindowModified())
            return;
        // The answer comes later: the frame that asks the window to close must not go while it waits.
        event->ignore();
        askAboutChanges();
    });
}

void MaterialView::askAboutChanges()
{
    // When all windows are to close, the user answers for one after the other.
    Closing& closing = closingWindows();
    if (closing.asked == nullptr)
        openQuestion();
    else if (closing.asked != this)
        closing.waiting.emplace_back(this);
}

void MaterialView::openQuestion()
{
    const QString text = tr("The changes of \"%1\" have not been applied.");
    // A child of this window, with which it goes.
    auto* const question = new QMessageBox(QMessageBox::Question, tr("Material editor"),
                                           text.arg(QString::fromStdString(m_materialObject->label.getValue())),
                                           QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, this);
    question->setTextFormat(Qt::PlainText);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Apply);
    connect(question, &QDialog::finished, this, &MaterialView::answerQuestion, Qt::QueuedConnection);
    closingWindows() = {this, {}};
    question->open();
}

void MaterialView::answerQuestion(int answer)
{
    guarded([this, answer] {
        const Closing closing = std::exchange(closingWindows(), {});
        const bool closes = answer == QMessageBox::Discard || (answer == QMessageBox::Apply && apply());
        // Whoever keeps one window open wants to look at it, and not to be asked about the next.
        if (!closes)
            return;
        closeUnasked();
        for (const QPointer<MaterialView>& other : closing.waiting)
            if (other != nullptr)
                other->requestClose();
    });
}

void MaterialView::closeUnasked()
{
    const QScopedValueRollback<bool> unasked(m_closesUnasked, true);
    requestClose();
}

void MaterialView::requestClose()
{
    if (auto* const frame = qobject_cast<QMdiSubWindow*>(parentWidget()))
        frame->close();
    else
        close();
}

void MaterialView::changeEvent(QEvent* event)
{
    MDIWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        guarded([this] { retranslateItems(); });
}

void MaterialView::retranslateItems()
{
    m_ui->retranslateUi(centralWidget());
    m_ui->tableView->retranslate();
    for (const auto& [item, material] : m_libraryItems)
        if (material != nullptr)
            item->setText(translateMaterialName(material->name));
    for (const auto& [item, property] : m_propertyItems) {
        if (property == nullptr)
            continue;
        const QSignalBlocker blocker(item->listWidget());
        item->setText(translatePropertyText(property->name, Text::name));
    }
}

const char* MaterialView::getName() const
{
    return "MaterialView";
}

bool MaterialView::has_message_handler(const char* /*message*/) const
{
    return false;
}

bool MaterialView::message_handler(const char* /*message*/, const char** /*answer*/)
{
    return false;
}

void MaterialView::remove_viewself()
{
    MDIWindow::remove_viewself();
}

QModelIndex MaterialView::currentIndex() const
{
    return {};
}

QModelIndexList MaterialView::selectedIndexes() const
{
    return {};
}

void MaterialView::resizeColumn(int /*column*/, int /*width*/) {}

void MaterialView::resizeRow(int /*row*/, int /*height*/) {}

void MaterialView::updateCell(const Obj::Property* /*property*/) {}

} // namespace MatGui
