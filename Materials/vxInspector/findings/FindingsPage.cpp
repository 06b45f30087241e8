#include "findings/FindingsPage.h"

#include "Gui/GuiApplication.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "findings/FindingTable.h"
#include "findings/Remedying.h"
#include "subject/SubjectWatch.h"
#include "table/ContentView.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QBoxLayout>
#include <QItemSelectionModel>
#include <QPushButton>

#include <algorithm>
#include <utility>
#include <vector>

namespace vxInspector {

namespace {

Mat::MaterialObject* findMaterial(const RowPlace& place)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
    return project != nullptr ? dynamic_cast<Mat::MaterialObject*>(project->get_object(place.objectId)) : nullptr;
}

/// Opens the editor of a material if it is not open, and shows a row of it.
void showInEditor(const RowPlace& place)
{
    Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    Mat::MaterialObject* const object = findMaterial(place);
    Gui::ViewFeeder* const node =
        object != nullptr && window != nullptr ? Gui::GuiApplication::Instance->get_view_feeder(object) : nullptr;
    if (node == nullptr)
        return;
    node->setEdit(0);
    Gui::MDIWindow* const editor = window->editorOf(*object);
    if (editor == nullptr)
        return;
    window->set_active_mdi_window(editor);
    if (place.propertyId != 0)
        editor->showRow(place.propertyId);
}

} // namespace

FindingsPage::FindingsPage(QWidget* parent) : TabPage("inspectorFindings", parent), m_apply(new QPushButton(this))
{
    m_apply->setObjectName(QStringLiteral("applyRemedy"));
    m_apply->setAutoDefault(false);
    static_cast<QBoxLayout*>(layout())->addWidget(m_apply, 0, Qt::AlignLeft);
    connect(m_apply, &QPushButton::clicked, this, &FindingsPage::applyRemedy);
    connect(&view(), &ContentView::chosen, this, &FindingsPage::showPlace);
    connect(view().selectionModel(), &QItemSelectionModel::currentChanged, this, &FindingsPage::enableButton);
    FindingsPage::retranslate();
    enableButton();
}

FindingsPage::~FindingsPage() = default;

void FindingsPage::retranslate()
{
    TabPage::retranslate();
    m_apply->setText(tr("&Apply remedy"));
    m_apply->setToolTip(tr("Change the value as the remedy of the selected finding says. The change can be undone."));
}

void FindingsPage::setContent(TableContent content, const vxUnits::UnitSystem& system)
{
    m_system = system;
    TabPage::setContent(std::move(content));
    selectOnlyRemedy();
    enableButton();
}

/// The button applies the remedy of the selected finding. If there is only one, nobody has to select it.
void FindingsPage::selectOnlyRemedy()
{
    const std::vector<Row>& rows = view().content().rows;
    const auto hasRemedy = [](const Row& row) { return row.remedy.has_value(); };
    if (view().currentIndex().isValid() || std::count_if(rows.begin(), rows.end(), hasRemedy) != 1)
        return;
    const auto row = std::find_if(rows.begin(), rows.end(), hasRemedy) - rows.begin();
    view().setCurrentIndex(view().model()->index(static_cast<int>(row), FindingColumn::Remedy));
}

const Row* FindingsPage::currentRow() const
{
    const QModelIndex current = view().currentIndex();
    return current.isValid() ? &view().content().rows[static_cast<std::size_t>(current.row())] : nullptr;
}

void FindingsPage::enableButton()
{
    const Row* const row = currentRow();
    m_apply->setEnabled(row != nullptr && row->remedy.has_value());
}

/// A click on a remedy only selects it, so that a click does not open an editor before the button applies the remedy.
void FindingsPage::showPlace(int row, int column) const
{
    const Row& finding = view().content().rows[static_cast<std::size_t>(row)];
    if (column == FindingColumn::Remedy && finding.remedy)
        return;
    Kelta::guarded(tr("The finding cannot be shown in the editor"), [place = finding.place] { showInEditor(place); });
}

void FindingsPage::applyRemedy() const
{
    Kelta::guarded(tr("The remedy cannot be applied"), [this] {
        const Row* const row = currentRow();
        if (row == nullptr || !row->remedy)
            return;
        Mat::MaterialObject* const object = findMaterial(row->place);
        if (object == nullptr)
            return;
        MatGui::MaterialView* const editor = SubjectWatch::editorOf(*object);
        const RowPlace place = row->place; // the table is filled again
        vxInspector::applyRemedy(vxUnits::Remedy(*row->remedy), *object, editor, m_system);
        // The editor has the step, and gets the keyboard, so that Undo can undo it.
        if (editor != nullptr)
            showInEditor(place);
    });
}

} // namespace vxInspector
