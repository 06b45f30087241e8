#include "Gui/ProjectTreeModel.h"

#include "Gui/EditCommands.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/PictureFactory.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

constexpr quintptr projectLevel = 0;
constexpr int iconSize = 32;

/// A block of neighbouring rows, [first, last].
struct Block
{
    int first;
    int last;
};

/// The rows of `ids` that are not among `others`; both in order.
std::vector<Block> blocksMissingIn(const std::vector<std::uint32_t>& ids, const std::vector<std::uint32_t>& others)
{
    std::vector<Block> blocks;
    auto other = others.begin();
    for (int row = 0; row < static_cast<int>(ids.size()); ++row) {
        const std::uint32_t id = ids[static_cast<std::size_t>(row)];
        other = std::lower_bound(other, others.end(), id);
        if (other != others.end() && *other == id)
            continue;
        if (!blocks.empty() && blocks.back().last == row - 1)
            blocks.back().last = row;
        else
            blocks.push_back({row, row});
    }
    return blocks;
}

/// A picture with a dot in its corner that tells the state.
QIcon makeIcon(const QString& pixmapName, const QColor& dot)
{
    // A node without a picture is no mistake.
    if (pixmapName.isEmpty())
        return {};
    QPixmap pixmap = PictureFactory::get_pixmap(pixmapName, iconSize);
    if (dot.isValid()) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::white);
        painter.setBrush(dot);
        painter.drawEllipse(QRectF(iconSize * 0.58, iconSize * 0.58, iconSize * 0.38, iconSize * 0.38));
    }
    return QIcon(pixmap);
}

QColor dotOf(const Obj::ProjectObject& object)
{
    if (object.isSuppressed())
        return Qt::gray;
    return object.getObjectState() == Obj::eVXObjectState::Ready ? QColor(0x2e, 0x9e, 0x4f) : QColor(0xe0, 0x8a, 0x1e);
}

QString toolTipOf(const Obj::ProjectObject& object)
{
    const QString state = object.getObjectState() == Obj::eVXObjectState::Ready
                              ? ProjectTreeModel::tr("Ready")
                              : ProjectTreeModel::tr("Empty: nothing is defined yet");
    const QString suppressed = object.isSuppressed() ? ProjectTreeModel::tr("\nSuppressed") : QString();
    return QString::fromStdString(object.label.getValue()) + QLatin1Char('\n') + state + suppressed;
}

} // namespace

ProjectTreeModel::ProjectTreeModel(QObject* parent) : QAbstractItemModel(parent)
{
    m_synchronization.setSingleShot(true);
    connect(&m_synchronization, &QTimer::timeout, this, &ProjectTreeModel::synchronize);
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        watch(*project);
    m_connections.emplace_back(application.projectAdded.connect([this](Obj::Project& project) { watch(project); }));
    m_connections.emplace_back(application.projectRemoved.connect([this](Obj::Project& project) {
        m_projectConnections.erase(project.getProjectId());
        m_synchronization.start(0);
    }));
    synchronize();
}

ProjectTreeModel::~ProjectTreeModel() = default;

Obj::Project* ProjectTreeModel::projectAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() != projectLevel)
        return nullptr;
    return Obj::Application::instance().get_project(m_rows[static_cast<std::size_t>(index.row())].projectId);
}

Obj::ProjectObject* ProjectTreeModel::objectAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == projectLevel)
        return nullptr;
    const auto projectId = static_cast<std::uint32_t>(index.internalId());
    const Obj::Project* const project = Obj::Application::instance().get_project(projectId);
    const int projectRow = rowOfProject(projectId);
    if (project == nullptr || projectRow < 0)
        return nullptr;
    const std::vector<std::uint32_t>& ids = m_rows[static_cast<std::size_t>(projectRow)].objectIds;
    return project->get_object(ids[static_cast<std::size_t>(index.row())]);
}

QModelIndex ProjectTreeModel::indexOf(const Obj::Project& project) const
{
    const int row = rowOfProject(project.getProjectId());
    return row >= 0 ? createIndex(row, 0, projectLevel) : QModelIndex();
}

QModelIndex ProjectTreeModel::indexOf(const Obj::ProjectObject& object) const
{
    const int projectRow = object.get_project() != nullptr ? rowOfProject(object.get_project()->getProjectId()) : -1;
    if (projectRow < 0)
        return {};
    const Rows& rows = m_rows[static_cast<std::size_t>(projectRow)];
    const auto found = std::lower_bound(rows.objectIds.begin(), rows.objectIds.end(), object.getObjectId());
    if (found == rows.objectIds.end() || *found != object.getObjectId())
        return {};
    return createIndex(static_cast<int>(found - rows.objectIds.begin()), 0, quintptr{rows.projectId});
}

QModelIndex ProjectTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    if (!parent.isValid())
        return createIndex(row, column, projectLevel);
    return createIndex(row, column, quintptr{m_rows[static_cast<std::size_t>(parent.row())].projectId});
}

QModelIndex ProjectTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == projectLevel)
        return {};
    const int row = rowOfProject(static_cast<std::uint32_t>(child.internalId()));
    return row >= 0 ? createIndex(row, 0, projectLevel) : QModelIndex();
}

int ProjectTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_rows.size());
    if (parent.internalId() != projectLevel)
        return 0;
    return static_cast<int>(m_rows[static_cast<std::size_t>(parent.row())].objectIds.size());
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
    Obj::ProjectObject* const object = objectAt(index);
    if (object == nullptr || role != Qt::EditRole)
        return false;
    return editProperty(*object, "Label", value.toString().toStdString());
}

Qt::ItemFlags ProjectTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (objectAt(index) != nullptr)
        flags |= Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
    return flags;
}

void ProjectTreeModel::synchronize()
{
    m_synchronization.stop();
    synchronizeProjects();
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row)
        synchronizeObjects(row);
}

void ProjectTreeModel::watch(Obj::Project& project)
{
    auto& connections = m_projectConnections[project.getProjectId()];
    connections.clear();
    const auto later = [this](Obj::ProjectObject&) { m_synchronization.start(0); };
    connections.emplace_back(project.objectAdded.connect(later));
    connections.emplace_back(project.objectRemoved.connect(later));
    connections.emplace_back(project.objectChanged.connect(
        [this](Obj::ProjectObject& object, const Obj::Property*) { objectChanged(object); }));
    m_synchronization.start(0);
}

void ProjectTreeModel::synchronizeProjects()
{
    std::vector<std::uint32_t> present;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        present.push_back(project->getProjectId());
    for (int row = static_cast<int>(m_rows.size()) - 1; row >= 0; --row) {
        if (std::binary_search(present.begin(), present.end(), m_rows[static_cast<std::size_t>(row)].projectId))
            continue;
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
    for (int row = 0; row < static_cast<int>(present.size()); ++row) {
        const std::uint32_t projectId = present[static_cast<std::size_t>(row)];
        if (row < static_cast<int>(m_rows.size()) && m_rows[static_cast<std::size_t>(row)].projectId == projectId)
            continue;
        beginInsertRows({}, row, row);
        m_rows.insert(m_rows.begin() + row, Rows{projectId, {}});
        endInsertRows();
    }
}

void ProjectTreeModel::synchronizeObjects(int projectRow)
{
    std::vector<std::uint32_t>& shown = m_rows[static_cast<std::size_t>(projectRow)].objectIds;
    const QModelIndex parent = createIndex(projectRow, 0, projectLevel);
    std::vector<std::uint32_t> present;
    for (const Obj::ProjectObject* const object : projectAt(parent)->get_objects())
        present.push_back(object->getObjectId());

    // From the end, so that the rows in front keep their numbers.
    const std::vector<Block> gone = blocksMissingIn(shown, present);
    for (auto block = gone.rbegin(); block != gone.rend(); ++block) {
        beginRemoveRows(parent, block->first, block->last);
        shown.erase(shown.begin() + block->first, shown.begin() + block->last + 1);
        endRemoveRows();
    }
    // From the front: each block then stands where it belongs in the end.
    for (const Block& block : blocksMissingIn(present, shown)) {
        beginInsertRows(parent, block.first, block.last);
        shown.insert(shown.begin() + block.first, present.begin() + block.first, present.begin() + block.last + 1);
        endInsertRows();
    }
}

int ProjectTreeModel::rowOfProject(std::uint32_t projectId) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [projectId](const Rows& rows) { return rows.projectId == projectId; });
    return found != m_rows.end() ? static_cast<int>(found - m_rows.begin()) : -1;
}

void ProjectTreeModel::objectChanged(const Obj::ProjectObject& object)
{
    const QModelIndex index = indexOf(object);
    if (index.isValid())
        Q_EMIT dataChanged(index, index);
}

QVariant ProjectTreeModel::dataOf(Obj::Project& project, int role) const
{
    if (role == Qt::DisplayRole)
        return QString::fromUtf8(project.get_name());
    GuiProject* const guiProject =
        role == Qt::DecorationRole ? GuiApplication::Instance->get_project(&project) : nullptr;
    if (guiProject == nullptr)
        return {};
    const QString name = QString::fromUtf8(guiProject->get_view_feeder()->getPixmapName());
    if (!m_icons.contains(name))
        m_icons.insert(name, makeIcon(name, {}));
    return m_icons.value(name);
}

QVariant ProjectTreeModel::dataOf(Obj::ProjectObject& object, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QString::fromStdString(object.label.getValue());
    case Qt::ToolTipRole:
        return toolTipOf(object);
    case Qt::DecorationRole:
        if (const ViewFeeder* const feeder = GuiApplication::Instance->get_view_feeder(&object))
            return iconOf(object, QString::fromUtf8(feeder->getPixmapName()));
        return {};
    case Qt::FontRole: {
        QFont font;
        font.setStrikeOut(object.isSuppressed());
        return font;
    }
    case Qt::ForegroundRole:
        return object.isSuppressed() ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                                     : QVariant();
    default:
        return {};
    }
}

QIcon ProjectTreeModel::iconOf(const Obj::ProjectObject& object, const QString& pixmapName) const
{
    const QColor dot = dotOf(object);
    const QString key = pixmapName + dot.name();
    if (!m_icons.contains(key))
        m_icons.insert(key, makeIcon(pixmapName, dot));
    return m_icons.value(key);
}

} // namespace Gui
