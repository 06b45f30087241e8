#pragma once

#include <QObject>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <map>
#include <set>
#include <vector>

class QLabel;

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace desktop {

/// Shows at the end of the status bar how many materials the current project has, how many of them are selected and how
/// many are not ready. Shows nothing if the current project is not a material project, and while the status bar has no
/// room beside a message.
class MaterialCounts : public QObject
{
    Q_OBJECT

public:
    /// Makes the main window its parent.
    explicit MaterialCounts(Gui::MainWindow& mainWindow);
    ~MaterialCounts() override;

private:
    void update();
    void follow(Mat::DocumentMaterial* project);
    void judgeChanged(const Mat::DocumentMaterial& project);
    void showCounts(const Mat::DocumentMaterial& project);
    /// Shows the counts only if the message of the status bar leaves room for them.
    void giveWay();

    QLabel* m_label; ///< the status bar owns it
    std::uint32_t m_projectId = 0;
    std::map<std::uint32_t, bool> m_areReady; ///< by id; a check of all materials after each change would take too long
    std::set<std::uint32_t> m_changedMaterials; ///< ids of materials to check again
    std::size_t m_notReady = 0;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace desktop
