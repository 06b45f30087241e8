#include "EditorWatch.h"

#include "KeptEdits.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"
#include "cells/CellReading.h"
#include "cells/ListNames.h"
#include "cells/TableColours.h"
#include "cells/ValueCellDelegate.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <boost/signals2/connection.hpp>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace desktop {

namespace {

/// Returns whether a label is that of a new material: "Material", or "Material" with a number.
bool isFirstLabel(const std::string& label)
{
    const std::string stem = "Material";
    return label.compare(0, stem.size(), stem) == 0 &&
           label.find_first_not_of("0123456789", stem.size()) == std::string::npos;
}

/// Returns a value in the form for messages. The value may be a list of thousands of numbers.
QString shortened(const QString& value)
{
    constexpr int most = 80;
    return value.size() <= most ? value : value.left(most) + QChar(0x2026);
}

/// Follows one editor, which owns it.
class EditorRecorder final : public QObject
{
public:
    EditorRecorder(MatGui::MaterialView& editor, KeptEdits& kept)
        : QObject(&editor),
          m_editor(editor),
          m_table(*editor.findChild<MatGui::SheetTableView*>()),
          m_delegate(*new ValueCellDelegate(&m_table)),
          m_kept(kept)
    {
        m_table.setItemDelegateForColumn(MatGui::SheetTableView::Value, &m_delegate);
        followDarkColours(m_table);
        ListNames::fitInto(editor);
        // Connected at the front, because another listener closes the editor.
        Obj::Project& project = *material().get_project();
        m_objectRemoved = project.objectRemoved.connect(
            [this, &project](const Obj::ProjectObject& removed) { keepEdits(project, removed); },
            boost::signals2::at_front);
        // The doubt about a value depends on those of other rows.
        connect(m_table.model(), &QAbstractItemModel::dataChanged, m_table.viewport(), qOverload<>(&QWidget::update));
        connect(&editor, &Gui::MDIWindow::applying, this, &EditorRecorder::begin);
        connect(&editor, &Gui::MDIWindow::applied, this, &EditorRecorder::record);
    }

private:
    void begin(Gui::ApplyRefusal& refusal)
    {
        Kelta::guarded(EditorWatch::tr("The values of an editor cannot be checked"), [&] {
            convertReadableTexts();
            if (auto ignored = m_editor.findIgnoredText())
                refusal = std::move(*ignored);
            else if (auto unread = findUnreadValue())
                refusal = std::move(*unread);
            m_before = MatGui::copyOf(*material().getCMaterial());
        });
    }

    /// Converts the texts that have become readable since they were typed, such as a unit of creep before its exponents.
    void convertReadableTexts()
    {
        std::map<int, QString> values;
        for (int row = 0; row < m_table.model()->rowCount(); ++row) {
            const QModelIndex cell = m_table.model()->index(row, MatGui::SheetTableView::Value);
            const QString text = cell.data(Qt::EditRole).toString();
            const auto reading = readCell(cell, text);
            const int id = cell.sibling(row, MatGui::SheetTableView::Id).data().toInt();
            if (reading && reading->isRead && vxMat::findIgnoredText(id, text.toStdString()))
                values[row] = reading->stored;
        }
        if (!values.empty())
            m_editor.setValues(values, EditorWatch::tr("Convert values"));
    }

    /// Returns the reason against a typed value that the table reads and the program refuses, such as "inf" and "0x10".
    /// Values that the material holds already are left.
    std::optional<Gui::ApplyRefusal> findUnreadValue() const
    {
        const std::vector<MatGui::SheetRow> rows = m_table.rows();
        for (int row = 0; row < m_table.model()->rowCount(); ++row) {
            const MatGui::SheetRow& typed = rows[static_cast<std::size_t>(row)];
            const QString fault = m_delegate.findFault(m_table.model()->index(row, MatGui::SheetTableView::Value));
            if (!fault.isEmpty() && !isHeld(typed))
                return Gui::ApplyRefusal{describe(row, fault), row};
        }
        return std::nullopt;
    }

    QString describe(int row, const QString& fault) const
    {
        const auto text = [this, row](int column) { return m_table.model()->index(row, column).data().toString(); };
        const QString message = EditorWatch::tr(R"(Row %1: The value "%2" of "%3" cannot be read. %4)");
        return message.arg(QString::number(row + 1), shortened(text(MatGui::SheetTableView::Value)),
                           text(MatGui::SheetTableView::Name), fault);
    }

    /// Returns whether the material has the value of a row.
    bool isHeld(const MatGui::SheetRow& row) const
    {
        const vxMat::MaterialProperty* const held = material().getCMaterial()->findProperty(row.id);
        return held != nullptr && vxMat::formatValue(*held) == row.value.toStdString();
    }

    void record()
    {
        Kelta::guarded(EditorWatch::tr("The changes in an editor cannot be recorded"), [&] {
            vxMat::restoreCatalogueTexts(*material().getCMaterial());
            if (m_before == nullptr)
                return;
            MatGui::keepSwitchNumbers(*material().getCMaterial(), *m_before);
            const MatGui::ChangeCount count = MatGui::countChanges(*m_before, *material().getCMaterial());
            const vxMsg::MessageProxy::Group oneStep{QString()};
            MatGui::recordChange(material(), std::move(m_before));
            takeNameOfLibraryMaterial();
            report(count);
        });
    }

    /// Gives a material that has its first label still the name of the library material that the user has picked.
    void takeNameOfLibraryMaterial()
    {
        const std::string& label = material().label.getValue();
        const std::string name = m_editor.getPickedName().toStdString();
        if (!name.empty() && label == material().get_name_in_project() && isFirstLabel(label))
            vxMsg::MessageProxy::instance().setProperty(vxMsg::PropertyPlace(material()), "Label", freeLabel(name));
    }

    /// Returns the name, with a number if another material has it.
    std::string freeLabel(const std::string& name) const
    {
        std::set<std::string> taken;
        for (const Obj::ProjectObject* const object : material().get_project()->getObjects())
            taken.insert(object->label.getValue());
        std::string label = name;
        for (int number = 2; taken.count(label) != 0; ++number)
            label = name + " " + std::to_string(number);
        return label;
    }

    /// Says what an Apply has done.
    void report(const MatGui::ChangeCount& count) const
    {
        const QString label = QString::fromStdString(material().label.getValue());
        const bool isSame = count.added + count.changed + count.removed == 0;
        const QString text =
            isSame ? EditorWatch::tr("\"%1\" was applied: no property has changed.").arg(label)
                   : EditorWatch::tr("\"%1\" was applied. Properties added: %2, changed: %3, removed: %4.")
                         .arg(label, QString::number(count.added), QString::number(count.changed),
                              QString::number(count.removed));
        Gui::MainWindow::announce(text, Kelta::LogMessage::Severity::Information,
                                  {material().get_project()->getProjectId(), material().getObjectId(), 0});
    }

    void keepEdits(Obj::Project& project, const Obj::ProjectObject& removed)
    {
        if (&removed == &material())
            m_kept.keep(project, removed.getObjectId(), m_editor.editSteps());
    }

    Mat::MaterialObject& material() const { return *m_editor.getMaterialObject(); }

    MatGui::MaterialView& m_editor;
    MatGui::SheetTableView& m_table;
    ValueCellDelegate& m_delegate; ///< a child of the table
    KeptEdits& m_kept;
    boost::signals2::scoped_connection m_objectRemoved;
    std::unique_ptr<vxMat::CMaterial> m_before; ///< the material before the Apply that is in progress
};

} // namespace

EditorWatch::EditorWatch(Gui::MainWindow& mainWindow) : QObject(&mainWindow), m_kept(new KeptEdits(this))
{
    connect(&mainWindow, &Gui::MainWindow::mdiWindowAdded, this, &EditorWatch::watch);
}

EditorWatch::~EditorWatch() = default;

void EditorWatch::watch(Gui::MDIWindow* window)
{
    if (auto* const editor = qobject_cast<MatGui::MaterialView*>(window))
        new EditorRecorder(*editor, *m_kept); // the editor owns it
}

} // namespace desktop
