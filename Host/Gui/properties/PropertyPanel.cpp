#include "Gui/PropertyPanel.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "Obj/ReadableName.h"
#include "properties/ColorChoice.h"
#include "properties/PropertyDelegate.h"
#include "vxMsg/MessageProxy.h"
#include "window/OpenEditor.h"

#include <QFocusEvent>
#include <QHeaderView>

#include <algorithm>

namespace Gui {

namespace {

constexpr int valueColumn = 1;

// Data that the first column keeps in addition to the texts.
constexpr int ownerRole = Qt::UserRole + 1; ///< index of the owner
constexpr int nameRole = Qt::UserRole + 2;  ///< the property's own name

QString translatedProperty(const char* text)
{
    return *text != '\0' ? QCoreApplication::translate("Property", text) : QString();
}

/// Returns the colour that a property holds, for a swatch beside its text; an invalid colour for other properties.
QColor swatchOf(const Obj::Property& property)
{
    const auto* const color = dynamic_cast<const Obj::PropertyColor*>(&property);
    return color != nullptr ? toQColor(*color) : QColor();
}

/// Returns the colour of a value that cannot be changed: paler than other texts, but readable, unlike disabled text.
QColor paleText(const QPalette& colors)
{
    const QColor& text = colors.color(QPalette::Text);
    const QColor& base = colors.color(QPalette::Base);
    const auto mixed = [](int one, int other) { return (13 * one + 7 * other) / 20; };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()), mixed(text.blue(), base.blue())};
}

} // namespace

PropertyPanel::PropertyPanel(GuiApplication& application, TreeSelectionSingleton& selection, QWidget* parent)
    : QTreeWidget(parent), m_application(application), m_selection(selection)
{
    setObjectName(QStringLiteral("propertyPanel"));
    configure();
    retranslate();
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &PropertyPanel::refresh);
    connect(&m_selection, &TreeSelectionSingleton::selectionChanged, this, [this] { m_refresh.start(0); });
    connect(this, &QTreeWidget::itemChanged, this, &PropertyPanel::takeOverEdit);
    showSelection();
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::showSelection()
{
    finishEditing();
    m_refresh.stop();
    m_filling = true;
    clear();
    watch();
    m_shown = owners();
    m_places = {};
    for (const OwnerIndex index : {Shown, Node})
        if (m_shown[index] != nullptr)
            addProperties(index, *m_shown[index]);
    const std::size_t count = m_selection.getCount();
    // The columns are properties and values, not sentences.
    setHeaderHidden(count != 1);
    if (count != 1)
        showCount(count);
    expandAll();
    fitColumns();
    m_filling = false;
    if (hasFocus())
        makeValueCurrent();
}

void PropertyPanel::finishEditing()
{
    if (state() == EditingState)
        Gui::finishEditing(*this, m_edited);
}

bool PropertyPanel::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (isColor(index))
        return (trigger & editTriggers()) != 0 && editColor(index);
    const bool isTaken = QTreeWidget::edit(index, trigger, event);
    if (isTaken && state() == EditingState)
        m_edited = index;
    return isTaken;
}

bool PropertyPanel::isColor(const QModelIndex& index) const
{
    return dynamic_cast<const Obj::PropertyColor*>(propertyAt(index)) != nullptr;
}

/// Returns false if the color must not be changed.
bool PropertyPanel::editColor(const QModelIndex& index)
{
    if ((index.flags() & Qt::ItemIsEditable) == 0)
        return false;
    const QString name = index.sibling(index.row(), 0).data(nameRole).toString();
    chooseColor(*this, m_application.requests(), {{*placeOf(index), name.toStdString()}});
    return true;
}

void PropertyPanel::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_refresh.start(0);
    }
}

void PropertyPanel::focusInEvent(QFocusEvent* event)
{
    QTreeWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        makeValueCurrent();
}

void PropertyPanel::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

void PropertyPanel::fitColumns()
{
    // Names and values share a narrow panel: a name that is cut is in the tool tip.
    const int width = viewport()->width();
    const int most = std::max(width * 11 / 20, width - sizeHintForColumn(valueColumn));
    const int name = std::min(std::max(sizeHintForColumn(0), header()->sectionSizeHint(0)), most);
    header()->resizeSection(0, name);
    header()->resizeSection(valueColumn, width - name);
}

void PropertyPanel::makeValueCurrent()
{
    QTreeWidgetItem* item = currentItem() != nullptr ? currentItem() : topLevelItem(0);
    while (item != nullptr && (item->flags() & Qt::ItemIsSelectable) == 0)
        item = itemBelow(item);
    if (item != nullptr)
        setCurrentItem(item, valueColumn);
}

void PropertyPanel::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTreeWidget::closeEditor(editor, hint);
    // Later changes are not shown yet.
    m_refresh.start(0);
}

/// Does nothing while the user edits a value of the selected entry, because an update would close the editor.
void PropertyPanel::refresh()
{
    if (state() != EditingState || owners() != m_shown)
        showSelection();
}

void PropertyPanel::configure()
{
    setColumnCount(2);
    setAlternatingRowColors(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    // The usual minimum is the width of the widest character, which may be half of the panel.
    header()->setMinimumSectionSize(1);
    setItemDelegate(new PropertyDelegate([this](const QModelIndex& index) { return propertyAt(index); }, this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
}

void PropertyPanel::retranslate()
{
    setAccessibleName(tr("Properties"));
    setHeaderLabels({tr("Property"), tr("Value")});
}

PropertyPanel::Owners PropertyPanel::owners() const
{
    if (m_selection.getCount() != 1)
        return {};
    const auto projects = m_selection.get_projects();
    if (!projects.empty()) {
        GuiProject* const guiProject = m_application.get_project(projects.front());
        return {projects.front(), guiProject != nullptr ? guiProject->get_view_feeder() : nullptr};
    }
    const auto objects = m_selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    if (objects.empty())
        return {};
    return {objects.front(), m_application.get_view_feeder(objects.front())};
}

const Obj::Property* PropertyPanel::propertyAt(const QModelIndex& index) const
{
    const QModelIndex first = index.sibling(index.row(), 0);
    const QByteArray name = first.data(nameRole).toString().toUtf8();
    if (index.column() != valueColumn || name.isEmpty())
        return nullptr;
    const Obj::PropertyDS* const owner = placeOf(first)->find();
    return owner != nullptr ? owner->get_property_by_name(name.constData()) : nullptr;
}

const std::optional<vxMsg::PropertyPlace>& PropertyPanel::placeOf(const QModelIndex& index) const
{
    return m_places[static_cast<std::size_t>(index.sibling(index.row(), 0).data(ownerRole).toInt())];
}

void PropertyPanel::showCount(std::size_t count)
{
    const QString text = count == 0 ? tr("Nothing is selected.") : tr("%1 entries are selected.").arg(count);
    auto* const item = new QTreeWidgetItem(this, {text});
    // Information, not an entry that can be chosen.
    item->setFlags(Qt::ItemIsEnabled);
    item->setFirstColumnSpanned(true);
}

void PropertyPanel::addProperties(OwnerIndex ownerIndex, const Obj::PropertyDS& owner)
{
    m_places[ownerIndex] = m_application.placeOf(owner);
    std::vector<Obj::Property*> properties;
    owner.get_property_array(properties);
    for (const Obj::Property* const property : properties)
        if (!owner.is_hidden(property))
            makeItem(owner, *property)->setData(0, ownerRole, ownerIndex);
}

QTreeWidgetItem* PropertyPanel::makeItem(const Obj::PropertyDS& owner, const Obj::Property& property)
{
    const char* const name = owner.get_property_name(&property);
    auto* const item = new QTreeWidgetItem(groupItem(translatedProperty(owner.get_property_group(&property))),
                                           {Obj::readableName(name)});
    item->setData(0, nameRole, QString::fromUtf8(name));
    const QString description = translatedProperty(owner.get_property_description(&property));
    item->setToolTip(0, description.isEmpty() ? item->text(0) : item->text(0) + QLatin1Char('\n') + description);
    item->setToolTip(valueColumn, description);
    showValue(*item, property, owner.is_read_only(&property));
    return item;
}

/// A boolean value has a check box, which needs no editor.
void PropertyPanel::showValue(QTreeWidgetItem& item, const Obj::Property& property, bool isReadOnly) const
{
    item.setData(valueColumn, PropertyDelegate::valueRole, QString::fromStdString(property.toText()));
    Qt::ItemFlag editing = Qt::ItemIsEditable;
    if (const auto* const yesOrNo = dynamic_cast<const Obj::PropertyBool*>(&property)) {
        item.setCheckState(valueColumn, yesOrNo->getValue() ? Qt::Checked : Qt::Unchecked);
        editing = Qt::ItemIsUserCheckable;
    } else {
        // Texts that the user cannot change are the program's own, and follow its language.
        const QString text = PropertyDelegate::shownText(property);
        item.setText(valueColumn, isReadOnly ? translatedProperty(text.toUtf8().constData()) : text);
    }
    Qt::ItemFlags flags = item.flags() & ~(Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    item.setFlags(flags.setFlag(editing, !isReadOnly));
    if (isReadOnly)
        item.setForeground(valueColumn, paleText(palette()));
    if (const QColor color = swatchOf(property); color.isValid())
        item.setData(valueColumn, Qt::DecorationRole, color);
}

QTreeWidgetItem* PropertyPanel::groupItem(const QString& group)
{
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (topLevelItem(i)->text(0) == group)
            return topLevelItem(i);
    auto* const item = new QTreeWidgetItem(this, {group});
    item->setFirstColumnSpanned(true);
    item->setFlags(Qt::ItemIsEnabled);
    QFont font = item->font(0);
    font.setBold(true);
    item->setFont(0, font);
    return item;
}

void PropertyPanel::takeOverEdit(QTreeWidgetItem* item, int column)
{
    if (m_filling)
        return;
    const QModelIndex index = indexFromItem(item, column);
    const Obj::Property* const property = propertyAt(index);
    if (property == nullptr)
        return;
    const bool isBool = dynamic_cast<const Obj::PropertyBool*>(property) != nullptr;
    const QString text = isBool ? QLatin1String(item->checkState(column) == Qt::Checked ? "true" : "false")
                                : item->data(column, PropertyDelegate::valueRole).toString();
    m_application.requests().setProperty(*placeOf(index), item->data(0, nameRole).toString().toStdString(),
                                         text.toStdString());
    // Shows the present value of the property when the item is no longer being edited.
    m_refresh.start(0);
}

void PropertyPanel::watch()
{
    m_connections.clear();
    const auto later = [this](auto&&...) { m_refresh.start(0); };
    m_connections.emplace_back(Obj::Application::instance().currentProjectChanged.connect(later));
    Obj::PropertyDS* const shown = owners()[Shown];
    if (auto* const object = dynamic_cast<Obj::ProjectObject*>(shown))
        m_connections.emplace_back(object->get_project()->objectChanged.connect(later));
    if (auto* const project = dynamic_cast<Obj::Project*>(shown))
        m_connections.emplace_back(project->changed.connect(later));
}

} // namespace Gui
