#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QMainWindow;
class QSettings;

namespace Gui {

/// The texts of the welcome page while no project is open.
struct PageOutline
{
    struct Button
    {
        QString command; ///< the name of the command
        QString text;
    };

    QString title;
    QString text;
    std::vector<Button> buttons;
};

/// What the first picture of a main window shows: the window as it was when it was last closed, without the contents of
/// its menus, toolbars and docks. Modules add to all of these, so that without a record they would be known only after
/// the modules are loaded.
struct WindowOutline
{
    struct Bar
    {
        QString name;
        Qt::ToolBarArea area;
        QSize size;
    };
    struct Dock
    {
        QString name;
        QString title;
    };

    QString language; ///< of the texts
    QStringList menus;
    std::vector<Bar> bars;
    std::vector<Dock> docks;
    PageOutline page;
};

/// Returns the outline of a complete window.
WindowOutline outlineOf(const QMainWindow& window, const QString& language, PageOutline page);

/// Stores an outline in the settings, or returns the stored one; nothing if there is none, or if its texts are in another
/// language.
void writeOutline(QSettings& settings, const WindowOutline& outline);
std::optional<WindowOutline> readOutline(const QSettings& settings, const QString& language);

/// Gives a window without menus, bars and docks stand-ins for all of them. Stand-ins of bars are as large as the bars;
/// stand-ins of docks have no content. QMainWindow::restoreState moves them to their places.
void showOutline(QMainWindow& window, const WindowOutline& outline);
/// Removes the titles of menus that showOutline has made. Bars are replaced with those of a workbench.
void removeOutlineMenus(QMainWindow& window);
/// Removes the stand-ins of docks that have got no content.
void removeOutlineDocks(QMainWindow& window);

} // namespace Gui
