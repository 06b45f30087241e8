#include "vxMaterial/gui/MaterialView.h"

#include "CatalogueText.h"
#include "EditorState.h"
#include "PageHeaders.h"
#include "ui_MaterialWidget.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/MessageBox.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace MatGui {

namespace {

/// Runs the action of a slot and catches its exceptions. Returns whether the action succeeded; otherwise shows the user
/// the reason.
template <class Action>
bool guarded(const Action& action)
{
    try {
        action();
        return true;
    } catch (...) {
        Mat::showCritical(MaterialView::tr("Material editor"),
                          MaterialView::tr("An error occurred: %1").arg(Kelta::currentExceptionText()));
        return false;
    }
}

/// The windows with unapplied changes that wait to be closed.
struct Closing
{
    QPointer<MaterialView> asked; ///< the window whose question is open
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

/// Returns a value in the form for messages. The value may be a list of thousands of numbers.
QString shortened(const QString& value)
{
    constexpr int most = 80;
    return value.size() <= most ? value : value.left(most) + QChar(0x2026);
}

QString describe(const UnreadableRow& row)
{
    const QString text = row.reason == UnreadableRow::Reason::NoNumber
                             ? MaterialView::tr(R"(Row %1: The value "%2" of "%3" is not a number!)")
                             : MaterialView::tr(R"(Row %1: The value "%2" of "%3" is out of the range of numbers!)");
    return text.arg(QString::number(row.number), shortened(row.value), row.name);
}

QString describeUnread(int number, const QString& value, const QString& name, const QString& fault)
{
    return MaterialView::tr(R"(Row %1: The value "%2" of "%3" cannot be read. %4)")
        .arg(QString::number(number), shortened(value), name, fault);
}

/// Returns the reason of the delegate why the value in a row cannot be read; empty if it has none, or if there is no text.
QString unreadReason(const SheetTableView& table, int row)
{
    const QModelIndex cell = table.model()->index(row, SheetTableView::Value);
    const auto* const delegate = qobject_cast<const SheetTableDelegate*>(table.itemDelegate(cell));
    const QString value = cell.data().toString();
    const QString fault = delegate != nullptr && cell.isValid() ? delegate->findFault(cell) : QString();
    if (fault.isEmpty() || value.trimmed().isEmpty())
        return {};
    return describeUnread(row + 1, value, cell.sibling(row, SheetTableView::Name).data().toString(), fault);
}

QString describe(const PartlyReadRow& row)
{
    if (!row.fault.isEmpty())
        return describeUnread(row.number, row.value, row.name, row.fault);
    const QString reason = MaterialView::tr("Row %1: The value \"%2\" of \"%3\" would be read as \"%4\": \"%5\" is not "
                                            "part of the number.");
    const QString remedy = row.unit.isEmpty() ? MaterialView::tr("Type the value without it.")
                                              : MaterialView::tr("Type the value in %1, without a unit.").arg(row.unit);
    return reason.arg(QString::number(row.number), shortened(row.value), row.name, shortened(row.readAs),
                      shortened(row.ignored)) +
           QLatin1Char(' ') + remedy;
}

Qt::CheckState checkState(bool checked)
{
    return checked ? Qt::Checked : Qt::Unchecked;
}

/// Returns the list at `index`; null if there is no list at this index.
QListWidget* listAt(std::initializer_list<QListWidget*> lists, int index)
{
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < lists.size();
    return inside ? lists.begin()[index] : nullptr;
}

/// Returns the first row that is not among the earlier rows; -1 if there is none.
int firstNewRow(const std::vector<SheetRow>& before, const std::vector<SheetRow>& now)
{
    const auto isNew = [&before](const SheetRow& row) {
        return std::find(before.begin(), before.end(), row) == before.end();
    };
    const auto found = std::find_if(now.begin(), now.end(), isNew);
    return found != now.end() ? static_cast<int>(found - now.begin()) : -1;
}

bool isUndo(const QKeyEvent& key)
{
    return key.matches(QKeySequence::Undo);
}

/// Returns whether a key is the platform's key for redo, or Ctrl+Y, which users expect on every platform.
bool isRedo(const QKeyEvent& key)
{
    return key.matches(QKeySequence::Redo) || (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier);
}

} // namespace

KELTA_REGISTER_ABSTRACT_CLASS(MatGui::MaterialView, Gui::MDIWindow)

MaterialView::MaterialView(Gui::GuiProject* project, Obj::ProjectObject* object, QWidget* parent)
    : MDIWindow(project, parent),
      m_materialObject(static_cast<Mat::MaterialObject*>(object)),
      m_history(std::make_unique<EditorHistory>([this](const EditorState& shown) { showState(shown); }))
{
    initUI();
    preloadMaterialLibrary();
    preloadMaterialProperties();
    m_ui->tableView->materialObject = m_materialObject;
    m_ui->tableView->loadMaterialObject();
    chooseFocus();
    // This connection comes last, so that the check states set above add no rows.
    connectSignals();
    m_history->restart(state());
    setEditedObject(object);
}

MaterialView::~MaterialView()
{
    // The table is destroyed later, and removes its rows.
    m_ui->tableView->model()->disconnect(this);
    m_history->stack().disconnect(this);
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
    QWidget* const lastOfLibrary = makePagesReachable(*m_ui->toolBoxLibrary, m_ui->tabWidget);
    setTabOrder(lastOfLibrary, m_ui->btnAddMat);
    QWidget* const lastOfBuild = makePagesReachable(*m_ui->toolBoxBuild, m_ui->btnAddMat);
    setTabOrder(lastOfBuild, m_ui->tableView);
    keepTabsVisible();
}

void MaterialView::chooseFocus()
{
    // The window itself does not take the keyboard focus. An empty table has nothing to edit.
    const bool hasRows = m_ui->tableView->model()->rowCount() != 0;
    setFocusProxy(hasRows ? static_cast<QWidget*>(m_ui->tableView) : m_ui->tabWidget);
}

void MaterialView::keepTabsVisible()
{
    m_ui->tabWidget->setMinimumWidth(m_ui->tabWidget->tabBar()->sizeHint().width());
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
    watchEdits();
}

void MaterialView::watchEdits()
{
    // While edits are unapplied, the title has a mark, and the program asks before it ends.
    connect(&m_history->stack(), &QUndoStack::cleanChanged, this, [this](bool clean) { setWindowModified(!clean); });
    // The delegate writes typed values into the model. The slots that make other edits record them.
    const auto note = [this] { guarded([this] { noteEdit(tr("Change value")); }); };
    const QAbstractItemModel* const model = m_ui->tableView->model();
    connect(model, &QAbstractItemModel::dataChanged, this, note);
    for (const auto rowsChange : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(model, rowsChange, this, note);
        connect(model, rowsChange, this, &MaterialView::chooseFocus);
    }
}

bool MaterialView::edit(const QString& step, const std::function<void()>& action)
{
    return guarded([&] {
        try {
            asOneEdit(action);
        } catch (...) {
            noteEdit(step);
            throw;
        }
        noteEdit(step);
    });
}

void MaterialView::asOneEdit(const std::function<void()>& action)
{
    const QScopedValueRollback<int> open(m_openEdits, m_openEdits + 1);
    action();
}

void MaterialView::noteEdit(const QString& step)
{
    if (m_openEdits == 0)
        m_history->note(state(), step);
}

EditorState MaterialView::state() const
{
    EditorState now{m_ui->tableView->rows(), {}, m_picked};
    for (const auto& [item, property] : m_propertyItems)
        if (property != nullptr && item->checkState() == Qt::Checked)
            now.checked.insert(property->id);
    return now;
}

void MaterialView::showState(const EditorState& shown)
{
    asOneEdit([&] {
        const std::vector<SheetRow> before = m_ui->tableView->rows();
        m_ui->tableView->setRows(shown.rows);
        m_picked = shown.picked;
        m_ui->tableView->setCurrentRow(firstNewRow(before, shown.rows));
        checkQuantities([&shown](int id) { return shown.checked.count(id) != 0; });
    });
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
    // There is no page for thermal, acoustic and undefined quantities.
    return listAt({m_ui->lw_build_basic, m_ui->lw_build_linear, m_ui->lw_build_hyper, m_ui->lw_build_plastic,
                   m_ui->lw_build_creep, m_ui->lw_build_viscoelastic, nullptr, m_ui->lw_build_em},
                  category);
}

void MaterialView::preloadMaterialLibrary()
{
    for (vxMat::MaterialBase* const material : vxMat::materialsInLibraryOrder(m_materialObject->getMatMgr())) {
        auto item = std::make_unique<QListWidgetItem>(translateMaterialName(material->name));
        m_libraryItems[item.get()] = material;
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
    for (vxMat::MaterialProperty* const property : propertiesInCatalogueOrder(m_materialObject->getMatMgr())) {
        QListWidget* const list = buildList(static_cast<int>(property->category));
        if (list == nullptr)
            continue;
        auto* const item = new QListWidgetItem(translatePropertyText(property->name, PropertyText::Name), list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(checkState(material->hasProperty(property->id)));
        m_propertyItems[item] = property;
    }
}

void MaterialView::updatePropertyList(vxMat::MaterialBase* material)
{
    if (material == nullptr)
        return;
    checkQuantities([material](int id) { return material->hasProperty(id); });
}

void MaterialView::checkQuantities(const std::function<bool(int id)>& isChecked)
{
    std::vector<std::unique_ptr<QSignalBlocker>> blockers;
    for (QListWidget* const list : buildLists())
        blockers.push_back(std::make_unique<QSignalBlocker>(list));
    for (const auto& [item, property] : m_propertyItems)
        if (property != nullptr)
            item->setCheckState(checkState(isChecked(property->id)));
}

void MaterialView::on_material_double_clicked(QListWidgetItem* item)
{
    if (item == nullptr)
        return;
    edit(tr("Take library material"), [&] {
        vxMat::MaterialBase* const material = m_libraryItems[item];
        // Update the table first: it shows either the whole material or its old rows. The check boxes follow it.
        m_ui->tableView->showMaterial(material);
        updatePropertyList(material);
        m_picked = material != nullptr ? item->text() : m_picked;
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
    const QString step = checked ? tr("Add property") : tr("Remove property");
    if (edit(step, [&] { m_ui->tableView->togglePropertyRow(checked, m_propertyItems[item]); }))
        return;
    // The check box must agree with the table, which is unchanged.
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
    if (table.model()->rowCount() == 0)
        return refuse(tr("Empty property"), tr("No property is defined."));
    QString message;
    if (!table.validateRows(message)) {
        const int row = table.findRefusedRow();
        const QString unread = unreadReason(table, row); // the rules read it as 0
        return unread.isEmpty() ? refuse(tr("Invalid material"), message, row, reasonOf(row))
                                : refuse(tr("Invalid material"), unread, row);
    }
    if (const auto row = table.findUnreadableRow())
        return refuse(tr("Invalid material"), describe(*row), row->number - 1);
    Gui::ApplyRefusal refusal;
    Q_EMIT applying(refusal);
    if (!refusal.reason.isEmpty())
        return refuse(tr("Invalid material"), refusal.reason, refusal.row);

    table.applyToMaterial();
    Q_EMIT applied();
    showApplied();
    return true;
}

QString MaterialView::reasonOf(int refusedRow) const
{
    // The rules read "7850 kg" as 0, so their message is not the reason.
    const auto partly = m_ui->tableView->findPartlyReadRow();
    return partly && partly->number - 1 == refusedRow ? describe(*partly) : QString();
}

bool MaterialView::refuse(const QString& title, const QString& reason, int row, const QString& details)
{
    const QPointer<MaterialView> self(this);
    Mat::showCritical(title, reason, details);
    // The window may be closed while the message is open.
    if (self != nullptr)
        m_ui->tableView->showRow(row);
    return false;
}

void MaterialView::showApplied()
{
    vxMat::CMaterial* const material = m_materialObject->getCMaterial();
    asOneEdit([&] {
        m_ui->tableView->showMaterial(material);
        updatePropertyList(material);
    });
    m_picked.clear();
    m_history->restart(state());
    setWindowModified(false);
}

void MaterialView::on_btnOK_clicked()
{
    if (on_btnApply_clicked())
        guarded(closeCurrentWindow);
}

void MaterialView::on_btnCancel_clicked()
{
    // The Cancel button itself discards the changes.
    const QScopedValueRollback<bool> unasked(m_closesUnasked, true);
    guarded(closeCurrentWindow);
}

void MaterialView::on_btnClear_clicked()
{
    edit(tr("Clear"), [this] { clear(); });
}

void MaterialView::clear()
{
    // Each change of a check state removes the rows of its quantity.
    for (const QListWidget* const list : buildLists())
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->checkState() == Qt::Checked)
                list->item(row)->setCheckState(Qt::Unchecked);
    QAbstractItemModel& model = *m_ui->tableView->model();
    model.removeRows(0, model.rowCount());
    m_picked.clear();
}

void MaterialView::currentTagChangedSlot(int /*index*/) {}

/// The Tab key stops at a widget with a focus proxy. After the last button it must go on at the tabs, which are the first
/// in the order, and not at the table.
bool MaterialView::focusNextPrevChild(bool next)
{
    setFocusProxy(m_ui->tabWidget);
    const bool isMoved = MDIWindow::focusNextPrevChild(next);
    chooseFocus();
    return isMoved;
}

void MaterialView::keyPressEvent(QKeyEvent* event)
{
    // A user who edits values must not delete the material in the tree by mistake.
    if (event->key() == Qt::Key_Delete)
        event->accept();
    else if (isUndo(*event) && keepsFromHost(*event))
        guarded([this] { Gui::MainWindow::undoStep(m_history->stack()); });
    else if (isRedo(*event) && keepsFromHost(*event))
        guarded([this] { Gui::MainWindow::redoStep(m_history->stack()); });
    else
        MDIWindow::keyPressEvent(event);
}

bool MaterialView::event(QEvent* event)
{
    // A shortcut of the host for one of these keys would take the key before it is pressed here.
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
    // The host's undo may remove the material, and this window with all edits. A key that the user holds down must not
    // reach the host after the last edit is undone.
    const bool hasEdits = isWindowModified() || m_history->stack().canRedo();
    return (isUndo(key) && (isWindowModified() || key.isAutoRepeat())) ||
           (isRedo(key) && (hasEdits || key.isAutoRepeat()));
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
        // The user decides later: the frame that closes the window must not be destroyed while it waits.
        event->ignore();
        askAboutChanges();
    });
}

void MaterialView::askAboutChanges()
{
    // If all windows are to close, the windows ask their questions one after the other.
    Closing& closing = closingWindows();
    if (closing.asked == nullptr)
        openQuestion();
    else if (closing.asked != this)
        closing.waiting.emplace_back(this);
}

void MaterialView::openQuestion()
{
    const QString text = tr("The changes of \"%1\" have not been applied.");
    // This window is the parent of the message box and destroys it.
    auto* const question = new QMessageBox(QMessageBox::Question, tr("Material editor"),
                                           text.arg(QString::fromStdString(m_materialObject->label.getValue())),
                                           QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, this);
    question->setTextFormat(Qt::PlainText);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Apply);
    // The standard text of the button has no mnemonic.
    question->button(QMessageBox::Discard)->setText(tr("&Discard"));
    connect(question, &QDialog::finished, this, &MaterialView::answerQuestion, Qt::QueuedConnection);
    closingWindows() = {this, {}};
    // The user must see the values in question, also if several windows close.
    if (Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst())
        mainWindow->set_active_mdi_window(this);
    question->open();
}

void MaterialView::answerQuestion(int answer)
{
    guarded([this, answer] {
        const Closing closing = std::exchange(closingWindows(), {});
        const bool closes = answer == QMessageBox::Discard || (answer == QMessageBox::Apply && apply());
        // If the user keeps a window open, there are no questions about the next windows.
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
        guarded([this] { retranslate(); });
}

void MaterialView::retranslate()
{
    m_ui->retranslateUi(centralWidget());
    namePageHeaders(*m_ui->toolBoxLibrary);
    namePageHeaders(*m_ui->toolBoxBuild);
    keepTabsVisible();
    asOneEdit([this] { m_ui->tableView->retranslate(); });
    for (const auto& [item, material] : m_libraryItems)
        if (material != nullptr)
            item->setText(translateMaterialName(material->name));
    for (const auto& [item, property] : m_propertyItems) {
        if (property == nullptr)
            continue;
        const QSignalBlocker blocker(item->listWidget());
        item->setText(translatePropertyText(property->name, PropertyText::Name));
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

void MaterialView::finishEditing()
{
    m_ui->tableView->finishEditing();
}

QUndoStack* MaterialView::getUndoStack()
{
    return &m_history->stack();
}

bool MaterialView::applyEdits()
{
    return on_btnApply_clicked();
}

bool MaterialView::showRow(int propertyId)
{
    const int row = m_ui->tableView->findRow(propertyId);
    m_ui->tableView->showRow(row);
    return row >= 0;
}

void MaterialView::setValues(const std::map<int, QString>& values, const QString& step)
{
    if (!guarded([this] { m_ui->tableView->finishEditing(); }))
        return;
    edit(step, [&] {
        std::vector<SheetRow> rows = m_ui->tableView->rows();
        for (const auto& [row, value] : values)
            if (row >= 0 && static_cast<std::size_t>(row) < rows.size())
                rows[static_cast<std::size_t>(row)].value = value;
        m_ui->tableView->setRows(rows);
    });
}

void MaterialView::setRows(const std::vector<SheetRow>& rows, const QString& step)
{
    if (!guarded([this] { m_ui->tableView->finishEditing(); }))
        return;
    edit(step, [&] {
        m_ui->tableView->setRows(rows);
        checkQuantities([&rows](int id) {
            return std::any_of(rows.begin(), rows.end(), [id](const SheetRow& row) { return row.id == id; });
        });
    });
}

std::optional<Gui::ApplyRefusal> MaterialView::findIgnoredText() const
{
    const auto row = m_ui->tableView->findPartlyReadRow();
    if (!row)
        return std::nullopt;
    return Gui::ApplyRefusal{describe(*row), row->number - 1};
}

/// Returns the state with the text that the user is typing; absent if the text changes nothing.
std::optional<EditorState> MaterialView::typedState() const
{
    EditorState now = state();
    std::vector<SheetRow> typed = m_ui->tableView->rowsWithTypedText();
    if (typed == now.rows)
        return std::nullopt;
    now.rows = std::move(typed);
    return now;
}

Json::Value MaterialView::unappliedEdits() const
{
    std::optional<EditorState> now = typedState();
    if (!now && !isWindowModified())
        return {};
    return toJson(EditorSteps{{{tr("Restore changes"), now ? std::move(*now) : state()}}, 1});
}

Json::Value MaterialView::editSteps() const
{
    EditorSteps all = m_history->steps();
    if (std::optional<EditorState> typed = typedState()) {
        all.steps.resize(static_cast<std::size_t>(all.done));
        all.steps.push_back({tr("Change value"), std::move(*typed)});
        ++all.done;
    }
    return all.steps.empty() ? Json::Value() : toJson(all);
}

bool MaterialView::restoreEdits(const Json::Value& record)
{
    const auto steps = toEditorSteps(record);
    return steps && guarded([&] { m_history->add(*steps); });
}

} // namespace MatGui
