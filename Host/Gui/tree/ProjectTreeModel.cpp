#include "Gui/ProjectTreeModel.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/ObjectStatus.h"
#include "Gui/ViewFeeder.h"
#include "Gui/WindowTitle.h"
#include "Obj/Application.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"
#include "properties/ColorChoice.h"
#include "tree/NodeIcons.h"
#include "tree/TreeShape.h"
#include "vxMsg/MessageProxy.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

using Key = quintptr;
static_assert(sizeof(Key) == 2 * sizeof(std::uint32_t), "the number of a row must hold two ids");

constexpr Key root = 0;

constexpr Key keyOf(std::uint32_t projectId, std::uint32_t objectId)
{
    return (Key{projectId} << 32U) | objectId;
}

constexpr std::uint32_t projectIdOf(Key key)
{
    return static_cast<std::uint32_t>(key >> 32U);
}

constexpr std::uint32_t objectIdOf(Key key)
{
    return static_cast<std::uint32_t>(key);
}

/// Returns the id under which the parent of a node lists it.
constexpr std::uint32_t idInParent(Key key)
{
    return objectIdOf(key) != 0 ? objectIdOf(key) : projectIdOf(key);
}

/// Returns the node that `parent` lists under `id`.
constexpr Key childOf(Key parent, std::uint32_t id)
{
    return parent == root ? keyOf(id, 0) : keyOf(projectIdOf(parent), id);
}

Key keyOf(const QModelIndex& index)
{
    return index.isValid() ? index.internalId() : root;
}

Obj::Project* findProject(Key key)
{
    return key != root ? Obj::Application::instance().get_project(projectIdOf(key)) : nullptr;
}

QColor dotOf(const Obj::ProjectObject& object)
{
    if (object.isSuppressed())
        return Qt::gray;
    switch (statusOf(object).level) {
    case ObjectStatus::Level::Ready:
        return {0x2e, 0x9e, 0x4f};
    case ObjectStatus::Level::WithFindings:
        return {0xd0, 0x2b, 0x2b};
    case ObjectStatus::Level::Empty:
        break;
    }
    return {0xe0, 0x8a, 0x1e};
}

/// Returns the colour of an object in views; an invalid colour if it has none.
QColor colorOf(const ViewFeeder& node)
{
    const Obj::PropertyColor* const color = findColor(node);
    return color != nullptr ? toQColor(*color) : QColor();
}

/// Returns null if the class of the object or project is registered.
const Obj::Placeholder* placeholderOf(const Kelta::RootClass& thing)
{
    return dynamic_cast<const Obj::Placeholder*>(&thing);
}

QString missingClassText(const Obj::Placeholder& placeholder)
{
    return ProjectTreeModel::tr(
               "The module for \"%1\" is not loaded. Its data are saved unchanged, but cannot be edited.")
        .arg(QString::fromStdString(placeholder.getOriginalClass()));
}

/// The maximum number of findings that a tool tip lists.
constexpr int mostFindings = 10;

QString describe(const ObjectStatus& status)
{
    if (status.level == ObjectStatus::Level::Ready)
        return ProjectTreeModel::tr("Ready");
    if (status.level == ObjectStatus::Level::Empty)
        return ProjectTreeModel::tr("Empty: nothing is defined yet");
    QStringList lines(ProjectTreeModel::tr("Not ready. Findings: %1").arg(status.findings.size()));
    lines += status.findings.mid(0, mostFindings);
    if (status.findings.size() > mostFindings)
        lines << QStringLiteral("...");
    return lines.join(QLatin1Char('\n'));
}

QString toolTipOf(const Obj::ProjectObject& object)
{
    const QString label = QString::fromStdString(object.label.getValue());
    if (const Obj::Placeholder* const placeholder = placeholderOf(object))
        return label + QLatin1Char('\n') + missingClassText(*placeholder);
    const QString state = describe(statusOf(object));
    const QString suppressed = object.isSuppressed() ? ProjectTreeModel::tr("\nSuppressed") : QString();
    return label + QLatin1Char('\n') + state + suppressed;
}

bool isGroup(const Obj::ProjectObject& object)
{
    return object.is_inherited_from(Obj::ProjectObjectGroup::getClassTypeId());
}

QVariant fontOf(const Obj::ProjectObject& object)
{
    QFont font;
    font.setStrikeOut(object.isSuppressed());
    return font;
}

/// Returns grey, or the usual colour.
QVariant textColour(bool isGrey)
{
    return isGrey ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text) : QVariant();
}

} // namespace

ProjectTreeModel::ProjectTreeModel(GuiApplication& application, QObject* parent)
    : QAbstractItemModel(parent), m_application(application), m_icons(std::make_unique<NodeIcons>())
{
    m_nodes[root] = {root, {}};
    m_synchronization.setSingleShot(true);
    connect(&m_synchronization, &QTimer::timeout, this, &ProjectTreeModel::synchronizeAndReport);
    Obj::Application& projects = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        watch(*project);
    m_connections.emplace_back(projects.projectAdded.connect([this](Obj::Project& project) { watch(project); }));
    m_connections.emplace_back(projects.projectRemoved.connect([this](const Obj::Project& project) {
        m_projectConnections.erase(project.getProjectId());
        m_counts.erase(project.getProjectId());
        m_synchronization.start(0);
    }));
    synchronize();
}

ProjectTreeModel::~ProjectTreeModel() = default;

Obj::Project* ProjectTreeModel::projectAt(const QModelIndex& index) const
{
    const Key key = keyOf(index);
    return objectIdOf(key) == 0 ? findProject(key) : nullptr;
}

Obj::ProjectObject* ProjectTreeModel::objectAt(const QModelIndex& index) const
{
    const Key key = keyOf(index);
    const Obj::Project* const project = objectIdOf(key) != 0 ? findProject(key) : nullptr;
    return project != nullptr ? project->get_object(objectIdOf(key)) : nullptr;
}

QModelIndex ProjectTreeModel::indexOf(const Obj::Project& project) const
{
    return indexOf(keyOf(project.getProjectId(), 0));
}

QModelIndex ProjectTreeModel::indexOf(const Obj::ProjectObject& object) const
{
    const Obj::Project* const project = object.get_project();
    return project != nullptr ? indexOf(keyOf(project->getProjectId(), object.getObjectId())) : QModelIndex();
}

QModelIndex ProjectTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const Key key = keyOf(parent);
    return createIndex(row, column, childOf(key, childrenOf(key)[static_cast<std::size_t>(row)]));
}

QModelIndex ProjectTreeModel::parent(const QModelIndex& child) const
{
    const auto node = m_nodes.find(keyOf(child));
    return node != m_nodes.end() ? indexOf(node->second.parent) : QModelIndex();
}

int ProjectTreeModel::rowCount(const QModelIndex& parent) const
{
    const auto node = m_nodes.find(keyOf(parent));
    return node != m_nodes.end() ? static_cast<int>(node->second.children.size()) : 0;
}

int ProjectTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant ProjectTreeModel::data(const QModelIndex& index, int role) const
{
    if (Obj::Project* const project = projectAt(index))
        return dataOf(*project, role);
    if (Obj::ProjectObject* const object = objectAt(index))
        return dataOf(*object, role);
    return {};
}

bool ProjectTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    if (const Obj::Project* const project = projectAt(index))
        return m_application.requests().renameProject(project->get_name(), value.toString().toStdString());
    Obj::ProjectObject* const object = objectAt(index);
    if (object == nullptr)
        return false;
    return m_application.requests().setProperty(vxMsg::PropertyPlace(*object), "Label", value.toString().toStdString());
}

Qt::ItemFlags ProjectTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    Obj::ProjectObject* const object = objectAt(index);
    if (object == nullptr)
        return index.isValid() ? flags | Qt::ItemIsEditable : flags;
    flags |= Qt::ItemIsEditable;
    flags.setFlag(Qt::ItemNeverHasChildren, !isGroup(*object));
    const ViewFeeder* const node = m_application.get_view_feeder(object);
    flags.setFlag(Qt::ItemIsSelectable, node == nullptr || !node->useNewSelectionModel());
    return flags;
}

void ProjectTreeModel::synchronize()
{
    m_synchronization.stop();
    synchronizeProjects();
    for (const Obj::Project* const project : Obj::Application::get_projects())
        synchronizeObjects(*project);
    if (!m_news.empty())
        synchronizeLater();
}

void ProjectTreeModel::synchronizeLater()
{
    m_synchronization.start(0);
}

void ProjectTreeModel::setFilter(Filter filter)
{
    m_filter = std::move(filter);
    m_counts.clear();
    m_news.clear();
    m_synchronization.stop();
    Nodes nodes = wantedNodes();
    if (nodes == m_nodes)
        return;
    beginResetModel();
    m_nodes = std::move(nodes);
    endResetModel();
}

ProjectTreeModel::MatchCounts ProjectTreeModel::matchCounts() const
{
    MatchCounts sum;
    for (const auto& [project, counts] : m_counts) {
        sum.matching += counts.matching;
        sum.all += counts.all;
    }
    return sum;
}

QModelIndexList ProjectTreeModel::parents() const
{
    QModelIndexList parents;
    for (const auto& [key, node] : m_nodes)
        if (key != root && !node.children.empty())
            parents << indexOf(key);
    return parents;
}

/// An object may be added before it has its content, so that what is hidden is reported later.
void ProjectTreeModel::synchronizeAndReport()
{
    const std::set<Key> news = std::exchange(m_news, {});
    synchronize();
    if (!isFiltered())
        return;
    QStringList hidden;
    for (const Key key : news) {
        const Obj::Project* const project = findProject(key);
        Obj::ProjectObject* const object = project != nullptr ? project->get_object(objectIdOf(key)) : nullptr;
        if (object != nullptr && !has(key) && isShown(*object))
            hidden << QString::fromStdString(object->label.getValue());
    }
    Q_EMIT filtered(hidden);
}

TreeShape ProjectTreeModel::shapeOf(const Obj::Project& project)
{
    TreeShape shape(project, [this](Obj::ProjectObject& object) { return isShown(object); });
    if (!isFiltered())
        return shape;
    MatchCounts counts;
    shape.keep([&](std::uint32_t id) {
        const bool isMatch = m_filter(*project.get_object(id));
        ++counts.all;
        counts.matching += isMatch ? 1 : 0;
        return isMatch;
    });
    m_counts[project.getProjectId()] = counts;
    return shape;
}

ProjectTreeModel::Nodes ProjectTreeModel::wantedNodes()
{
    Nodes nodes;
    nodes[root] = {root, {}};
    for (const Obj::Project* const project : Obj::Application::get_projects()) {
        const std::uint32_t id = project->getProjectId();
        nodes[root].children.push_back(id);
        nodes[keyOf(id, 0)].parent = root;
        const TreeShape shape = shapeOf(*project);
        for (const std::uint32_t parent : shape.parentsFromTop()) {
            nodes[keyOf(id, parent)].children = shape.childrenOf(parent);
            for (const std::uint32_t child : shape.childrenOf(parent))
                nodes[keyOf(id, child)].parent = keyOf(id, parent);
        }
    }
    return nodes;
}

void ProjectTreeModel::watch(Obj::Project& project)
{
    auto& connections = m_projectConnections[project.getProjectId()];
    connections.clear();
    connections.emplace_back(project.objectAdded.connect([this](Obj::ProjectObject& object) { objectAdded(object); }));
    connections.emplace_back(project.objectRemoved.connect([this](Obj::ProjectObject&) { synchronizeLater(); }));
    connections.emplace_back(project.objectChanged.connect(
        [this](Obj::ProjectObject& object, const Obj::Property*) { objectChanged(object); }));
    connections.emplace_back(project.changed.connect([this, &project](const Obj::Property*) {
        const QModelIndex index = indexOf(project);
        if (index.isValid())
            Q_EMIT dataChanged(index, index);
    }));
    m_synchronization.start(0);
}

void ProjectTreeModel::objectAdded(const Obj::ProjectObject& object)
{
    if (isFiltered())
        m_news.insert(keyOf(object.get_project()->getProjectId(), object.getObjectId()));
    synchronizeLater();
}

void ProjectTreeModel::objectChanged(Obj::ProjectObject& object)
{
    const QModelIndex index = indexOf(object);
    if (isFiltered()) {
        if (index.isValid())
            m_news.insert(keyOf(index));
        synchronizeLater();
    }
    if (index.isValid())
        Q_EMIT dataChanged(index, index);
    // The object may have entered a group, or changed its visibility. A group takes its members with it.
    if (index.isValid() != isShown(object) || objectAt(index.parent()) != object.getParentGroup())
        m_synchronization.start(0);
}

bool ProjectTreeModel::isShown(Obj::ProjectObject& object) const
{
    const ViewFeeder* const node = m_application.get_view_feeder(&object);
    return node == nullptr || node->isShow();
}

void ProjectTreeModel::synchronizeProjects()
{
    Ids wanted;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        wanted.push_back(project->getProjectId());
    removeSurplus(root, wanted);
    addMissing(root, wanted);
}

/// Moves nodes before it removes others, so that remaining nodes stay selected. Moves a parent to its place
/// before its children, so that no node is moved under itself.
void ProjectTreeModel::synchronizeObjects(const Obj::Project& project)
{
    const std::uint32_t id = project.getProjectId();
    const TreeShape shape = shapeOf(project);
    const Ids parents = shape.parentsFromTop();
    for (const std::uint32_t parent : parents)
        addMissing(keyOf(id, parent), shape.childrenOf(parent));
    removeSurplusBelow(keyOf(id, 0), shape);
}

// NOLINTNEXTLINE(misc-no-recursion): at most ProjectObjectGroup::deepestNesting deep
void ProjectTreeModel::removeSurplusBelow(Key node, const TreeShape& shape)
{
    removeSurplus(node, shape.childrenOf(objectIdOf(node)));
    for (const std::uint32_t id : childrenOf(node))
        if (const Key child = childOf(node, id); !childrenOf(child).empty())
            removeSurplusBelow(child, shape);
}

void ProjectTreeModel::addMissing(Key parent, const Ids& wanted)
{
    for (auto id = wanted.begin(); id != wanted.end();) {
        const auto node = m_nodes.find(childOf(parent, *id));
        if (node == m_nodes.end()) {
            const auto begin = id;
            const Ids& present = childrenOf(parent);
            const auto next = std::lower_bound(present.begin(), present.end(), *id);
            while (id != wanted.end() && !has(childOf(parent, *id)) && (next == present.end() || *id < *next))
                ++id;
            insert(parent, begin, id);
            continue;
        }
        if (node->second.parent != parent)
            move(node->first, parent);
        ++id;
    }
}

void ProjectTreeModel::removeSurplus(Key parent, const Ids& wanted)
{
    const auto isWanted = [&wanted](std::uint32_t id) { return std::binary_search(wanted.begin(), wanted.end(), id); };
    const Ids& present = childrenOf(parent);
    // From the end, so that the rows before keep their numbers.
    for (std::size_t end = present.size(); end > 0;) {
        std::size_t first = end;
        while (first > 0 && !isWanted(present[first - 1]))
            --first;
        if (first < end)
            removeBlock(parent, static_cast<int>(first), static_cast<int>(end) - 1);
        end = first;
        while (end > 0 && isWanted(present[end - 1]))
            --end;
    }
}

void ProjectTreeModel::insert(Key parent, Ids::const_iterator begin, Ids::const_iterator end)
{
    Ids& children = m_nodes.at(parent).children;
    const auto place = std::lower_bound(children.begin(), children.end(), *begin);
    const int row = static_cast<int>(place - children.begin());
    beginInsertRows(indexOf(parent), row, row + static_cast<int>(end - begin) - 1);
    children.insert(place, begin, end);
    for (auto id = begin; id != end; ++id)
        m_nodes[childOf(parent, *id)] = {parent, {}};
    endInsertRows();
}

void ProjectTreeModel::move(Key node, Key parent)
{
    const Key before = m_nodes.at(node).parent;
    Ids& source = m_nodes.at(before).children;
    Ids& target = m_nodes.at(parent).children;
    const std::uint32_t id = idInParent(node);
    const int row = rowOf(node);
    const auto place = std::lower_bound(target.begin(), target.end(), id);
    beginMoveRows(indexOf(before), row, row, indexOf(parent), static_cast<int>(place - target.begin()));
    target.insert(place, id);
    source.erase(source.begin() + row);
    m_nodes.at(node).parent = parent;
    endMoveRows();
}

void ProjectTreeModel::removeBlock(Key parent, int first, int last)
{
    beginRemoveRows(indexOf(parent), first, last);
    Ids& children = m_nodes.at(parent).children;
    for (int row = first; row <= last; ++row)
        erase(childOf(parent, children[static_cast<std::size_t>(row)]));
    children.erase(children.begin() + first, children.begin() + last + 1);
    endRemoveRows();
}

// NOLINTNEXTLINE(misc-no-recursion): at most ProjectObjectGroup::deepestNesting deep
void ProjectTreeModel::erase(Key node)
{
    const auto found = m_nodes.find(node);
    const Ids children = std::move(found->second.children);
    m_nodes.erase(found);
    for (const std::uint32_t id : children)
        erase(childOf(node, id));
}

int ProjectTreeModel::rowOf(Key node) const
{
    const Ids& siblings = childrenOf(m_nodes.at(node).parent);
    return static_cast<int>(std::lower_bound(siblings.begin(), siblings.end(), idInParent(node)) - siblings.begin());
}

QModelIndex ProjectTreeModel::indexOf(Key node) const
{
    return node != root && has(node) ? createIndex(rowOf(node), 0, node) : QModelIndex();
}

QVariant ProjectTreeModel::dataOf(Obj::Project& project, int role) const
{
    const Obj::Placeholder* const placeholder = placeholderOf(project);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QString::fromUtf8(project.get_name());
    case Qt::ToolTipRole:
        return placeholder != nullptr ? missingClassText(*placeholder) : QVariant();
    case Qt::ForegroundRole:
        return textColour(placeholder != nullptr);
    case Qt::DecorationRole:
        if (GuiProject* const guiProject = m_application.get_project(&project))
            return m_icons->get(QString::fromUtf8(guiProject->get_view_feeder()->getPixmapName()));
        return {};
    default:
        return {};
    }
}

QVariant ProjectTreeModel::dataOf(Obj::ProjectObject& object, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QString::fromStdString(object.label.getValue());
    case Qt::ToolTipRole:
        return escapedForToolTip(toolTipOf(object));
    case Qt::DecorationRole:
        if (const ViewFeeder* const node = m_application.get_view_feeder(&object))
            return m_icons->get(QString::fromUtf8(node->getPixmapName()), dotOf(object), colorOf(*node));
        return {};
    case Qt::FontRole:
        return fontOf(object);
    case Qt::ForegroundRole:
        return textColour(object.isSuppressed() || placeholderOf(object) != nullptr);
    default:
        return {};
    }
}

} // namespace Gui
