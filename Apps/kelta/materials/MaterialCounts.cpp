#include "MaterialCounts.h"

#include "MaterialProjects.h"

#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QLabel>
#include <QStatusBar>

#include <algorithm>

namespace desktop {

MaterialCounts::MaterialCounts(Gui::MainWindow& mainWindow)
    : QObject(&mainWindow), m_label(new QLabel(mainWindow.statusBar()))
{
    m_label->setObjectName(QStringLiteral("materialCounts"));
    m_label->hide();
    mainWindow.statusBar()->addPermanentWidget(m_label);
    connect(&mainWindow, &Gui::MainWindow::updated, this,
            [this] { Kelta::guarded(tr("The materials cannot be counted"), [this] { update(); }); });
    connect(mainWindow.statusBar(), &QStatusBar::messageChanged, this, &MaterialCounts::giveWay);
}

MaterialCounts::~MaterialCounts() = default;

void MaterialCounts::update()
{
    Mat::DocumentMaterial* const project = currentMaterialProject();
    if (project == nullptr || project->getProjectId() != m_projectId)
        follow(project);
    if (project != nullptr) {
        judgeChanged(*project);
        showCounts(*project);
    }
    giveWay();
}

void MaterialCounts::giveWay()
{
    const auto& statusBar = *static_cast<const QStatusBar*>(m_label->parent());
    const QString message = statusBar.currentMessage();
    const int needed = statusBar.fontMetrics().horizontalAdvance(message + QStringLiteral("    "));
    const bool isRoom = message.isEmpty() || needed + m_label->sizeHint().width() <= statusBar.width();
    m_label->setVisible(m_projectId != 0 && isRoom);
}

void MaterialCounts::follow(Mat::DocumentMaterial* project)
{
    m_connections.clear();
    m_areReady.clear();
    m_changedMaterials.clear();
    m_projectId = project != nullptr ? project->getProjectId() : 0;
    if (project == nullptr)
        return;
    for (const Mat::MaterialObject* const object : Mat::materialsOf(*project))
        m_changedMaterials.insert(object->getObjectId());
    const auto change = [this](const Obj::ProjectObject& object, auto&&...) {
        m_changedMaterials.insert(object.getObjectId());
    };
    m_connections.emplace_back(project->objectAdded.connect(change));
    m_connections.emplace_back(project->objectRemoved.connect(change));
    m_connections.emplace_back(project->objectChanged.connect(change));
}

void MaterialCounts::judgeChanged(const Mat::DocumentMaterial& project)
{
    for (const std::uint32_t id : m_changedMaterials) {
        const auto* const object = dynamic_cast<const Mat::MaterialObject*>(project.get_object(id));
        if (object == nullptr)
            m_areReady.erase(id);
        else
            m_areReady[id] = vxMat::getMaterialState(*object->getCMaterial()) == vxMat::MaterialState::Ready;
    }
    if (!m_changedMaterials.empty())
        m_notReady = static_cast<std::size_t>(
            std::count_if(m_areReady.begin(), m_areReady.end(), [](const auto& entry) { return !entry.second; }));
    m_changedMaterials.clear();
}

void MaterialCounts::showCounts(const Mat::DocumentMaterial& project)
{
    const auto selected = Gui::TreeSelectionSingleton::instance().get_objects_of_type(
        Mat::MaterialObject::getClassTypeId(), project.get_name());
    m_label->setText(
        tr("Materials: %1, selected: %2, not ready: %3")
            .arg(QString::number(m_areReady.size()), QString::number(selected.size()), QString::number(m_notReady)));
}

} // namespace desktop
