#include "window/DockSet.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "window/DockFocus.h"

#include <QAbstractScrollArea>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>
#include <memory>

namespace Gui {

namespace {

Qt::DockWidgetArea areaOf(DockArea area)
{
    switch (area) {
    case DockArea::Left:
        return Qt::LeftDockWidgetArea;
    case DockArea::Right:
        return Qt::RightDockWidgetArea;
    case DockArea::Bottom:
        break;
    }
    return Qt::BottomDockWidgetArea;
}

/// Lets a view with scroll bars shrink to one line, so that all docks fit into the window on a small screen.
void shrinkToOneLine(QWidget& content)
{
    constexpr int lines = 1;
    constexpr int characters = 12;
    const QFontMetrics font = content.fontMetrics();
    if (qobject_cast<QAbstractScrollArea*>(&content) != nullptr)
        content.setMinimumSize(characters * font.averageCharWidth(), lines * font.lineSpacing());
}

/// Returns whether a dock right of the documents would leave no room for them and the explorer.
bool isTooWide(const QDockWidget& dock, const QMainWindow& window)
{
    constexpr int charactersOfTwoColumns = 68;
    constexpr int leastOfTwoColumns = 580; // for small fonts too, since buttons and margins do not shrink with them
    const int twoColumns =
        std::max(leastOfTwoColumns, charactersOfTwoColumns * window.fontMetrics().averageCharWidth());
    const QWidget* const content = dock.widget(); // null while only the outline of the dock is shown
    return window.width() < twoColumns + (content != nullptr ? content->sizeHint().width() : dock.width());
}

QString nameOf(const DockEntry& entry)
{
    return QString::fromStdString(entry.name);
}

void addToggleCommand(const DockEntry& entry, CommandController& commands)
{
    const std::string command = DockSet::commandOf(entry.name);
    const auto toggle = [name = entry.name] {
        if (MainWindow* const window = MainWindow::get_main_window_inst())
            window->toggleDock(name);
    };
    addCommands(commands, entry.title.context,
                {{command.c_str(),
                  entry.title.source,
                  entry.title.source,
                  "",
                  {},
                  CommandType::none,
                  toggle,
                  [name = entry.name] {
                      const MainWindow* const window = MainWindow::get_main_window_inst();
                      return window != nullptr && window->hasDock(name);
                  },
                  [name = entry.name] {
                      const MainWindow* const window = MainWindow::get_main_window_inst();
                      return window != nullptr && window->isDockShown(name);
                  }}});
}

} // namespace

void DockSet::add(const DockEntry& entry)
{
    const QString failure =
        QCoreApplication::translate("Gui::DockSet", "The docking window \"%1\" cannot be made").arg(nameOf(entry));
    std::unique_ptr<QWidget> content;
    if (!Kelta::guarded(failure, [&] { content.reset(entry.make()); }) || content == nullptr)
        return;
    QDockWidget* const standIn = find(entry.name);
    QDockWidget* const dock = standIn != nullptr ? standIn : new QDockWidget(&m_window);
    dock->setObjectName(nameOf(entry));
    dock->setWindowTitle(entry.title.translated());
    shrinkToOneLine(*content);
    dock->setWidget(content.release());
    new DockFocus(*dock, m_window); // the dock owns it
    m_entries.push_back(entry);
    if (standIn != nullptr || m_window.restoreDockWidget(dock))
        return;
    m_window.addDockWidget(areaOf(entry.area), dock);
    const bool isBeside = entry.area == DockArea::Right;
    if (entry.visibility == DockVisibility::HiddenAtFirst || (isBeside && isTooWide(*dock, m_window)))
        dock->hide();
    else if (m_window.isVisible())
        dock->show();
}

void DockSet::addContributed(const Contributions& contributions, CommandController& commands)
{
    const std::vector<DockEntry>& entries = contributions.docks();
    for (; m_contributedCount < entries.size(); ++m_contributedCount) {
        const DockEntry& entry = entries[m_contributedCount];
        const QDockWidget* const dock = find(entry.name);
        if (dock == nullptr || dock->widget() == nullptr)
            add(entry);
        addToggleCommand(entry, commands);
    }
}

QDockWidget* DockSet::find(const std::string& name) const
{
    return m_window.findChild<QDockWidget*>(QString::fromStdString(name), Qt::FindDirectChildrenOnly);
}

void DockSet::show(const std::string& name) const
{
    QDockWidget* const dock = find(name);
    if (dock == nullptr)
        return;
    dock->show();
    dock->raise();
}

void DockSet::toggle(const std::string& name) const
{
    if (QDockWidget* const dock = find(name))
        dock->setVisible(!dock->isVisible());
}

void DockSet::makeRoomForDocuments() const
{
    for (QDockWidget* const dock : m_window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!dock->isFloating() && m_window.dockWidgetArea(dock) == Qt::RightDockWidgetArea &&
            isTooWide(*dock, m_window))
            dock->hide();
}

void DockSet::retranslate() const
{
    for (const DockEntry& entry : m_entries)
        find(entry.name)->setWindowTitle(entry.title.translated());
}

} // namespace Gui
