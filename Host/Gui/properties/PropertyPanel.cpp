#include "Gui/PropertyPanel.h"

#include "Gui/EditCommands.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include <array>

namespace Gui {

namespace {

constexpr int ownerRole = Qt::UserRole;    ///< index into owners()
constexpr int nameRole = Qt::UserRole + 1; ///< the property's own name

/// Edits the value column alone.
class ValueDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return index.column() == 1 ? QStyledItemDelegate::createEditor(parent, option, index) : nullptr;
    }
};

/// What is selected alone and its node; null where there is none.
std::array<Obj::PropertyDS*, 2> owners()
{
    const TreeSelectionSingleton& selection = TreeSelectionSingleton::instance();
    if (selection.get_count() != 1 || GuiApplication::Instance == nullptr)
        return {};
    const auto projects = selection.get_projects();
    if (!projects.empty()) {
        GuiProject* const guiProject = GuiApplication::Instance->get_project(projects.front());
        return {projects.front(), guiProject != nullptr ? guiProject->get_view_feeder() : nullptr};
    }
    const auto objects = selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    if (objects.empty())
        return {};
    return {objects.front(), GuiApplication::Instance->get_view_feeder(objects.front())};
}

QString translatedProperty(const char* text)
{
    return *text != '\0' ? QCoreApplication::translate("Property", text) : QString();
}

/// The colour that a property holds, for a swatch beside its text.
QColor swatchOf(const Obj::Property& property)
{
    const auto* const color = dynamic_cast<const Obj::PropertyColor*>(&property);
    if (color == nullptr)
        return {};
    const Obj::Color& value = color->getValue();
    return QColor::fromRgbF(static_cast<double>(value.red), static_cast<double>(value.green),
                            static_cast<double>(value.blue));
}

} // namespace

PropertyPanel::PropertyPanel(GuiApplication& application, TreeSelectionSingleton& selection, QWidget* parent)
    : QTreeWidget(parent), m_application(application), m_selection(selection)
{
    setObjectName(QStringLiteral("propertyPanel"));
    setColumnCount(2);
    retranslate();
    setAlternatingRowColors(true);
    setItemDelegate(new ValueDelegate(this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &PropertyPanel::showSelection);
    connect(&TreeSelectionSingleton::instance(), &TreeSelectionSingleton::selectionChanged, this,
            [this] { m_refresh.start(0); });
    connect(this, &QTreeWidget::itemChanged, this, &PropertyPanel::takeOverEdit);
    showSelection();
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::showSelection()
{
    m_refresh.stop();
    m_filling = true;
    clear();
    watch();
    for (Obj::PropertyDS* const owner : owners())
        if (owner != nullptr)
            addProperties(*owner);
    const std::size_t count = TreeSelectionSingleton::instance().get_count();
    // The columns are properties and values, not sentences.
    setHeaderHidden(count != 1);
    header()->setSectionResizeMode(0, count == 1 ? QHeaderView::ResizeToContents : QHeaderView::Fixed);
    if (count != 1) {
        const QString text = count == 0 ? tr("Nothing is selected.") : tr("%1 entries are selected.").arg(count);
        auto* const item = new QTreeWidgetItem(this, {text});
        item->setFlags(Qt::NoItemFlags);
        item->setFirstColumnSpanned(true);
    }
    expandAll();
    m_filling = false;
}

void PropertyPanel::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_refresh.start(0);
    }
}

void PropertyPanel::retranslate()
{
    setAccessibleName(tr("Properties"));
    setHeaderLabels({tr("Property"), tr("Value")});
}

void PropertyPanel::addProperties(Obj::PropertyDS& owner)
{
    const bool isNode = &owner == owners()[1];
    std::vector<Obj::Property*> properties;
    owner.get_property_array(properties);
    for (const Obj::Property* const property : properties) {
        if (owner.is_hidden(property))
            continue;
        const char* const name = owner.get_property_name(property);
        auto* const item = new QTreeWidgetItem(groupItem(translatedProperty(owner.get_property_group(property))),
                                               {translatedProperty(name), QString::fromStdString(property->to_text())});
        item->setData(0, ownerRole, isNode ? 1 : 0);
        item->setData(0, nameRole, QString::fromUtf8(name));
        for (const int column : {0, 1})
            item->setToolTip(column, translatedProperty(owner.get_property_description(property)));
        if (!owner.is_read_only(property))
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        else
            item->setForeground(1, palette().brush(QPalette::Disabled, QPalette::Text));
        if (const QColor color = swatchOf(*property); color.isValid())
            item->setData(1, Qt::DecorationRole, color);
    }
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
    if (m_filling || column != 1)
        return;
    Obj::PropertyDS* const owner = owners()[static_cast<std::size_t>(item->data(0, ownerRole).toInt())];
    const QByteArray name = item->data(0, nameRole).toString().toUtf8();
    if (owner != nullptr && !editProperty(*owner, name.constData(), item->text(1).toStdString()))
        Kelta::MessageLog::warning(tr(R"("%1" cannot be "%2"; it stays as it was.)").arg(item->text(0), item->text(1)));
    // The item is still being edited.
    m_refresh.start(0);
}

void PropertyPanel::watch()
{
    m_connections.clear();
    const auto later = [this](auto&&...) { m_refresh.start(0); };
    Obj::Application& application = Obj::Application::instance();
    m_connections.emplace_back(application.currentProjectChanged.connect(later));
    const auto* const project = dynamic_cast<const Obj::Project*>(owners()[0]);
    if (auto* const object = dynamic_cast<Obj::ProjectObject*>(owners()[0]))
        m_connections.emplace_back(object->get_project()->objectChanged.connect(later));
    else if (project != nullptr)
        m_connections.emplace_back(const_cast<Obj::Project*>(project)->changed.connect(later));
}

} // namespace Gui
