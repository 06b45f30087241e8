#include "window/WindowOutline.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QSettings>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

constexpr const char* languageKey = "window/outline/language";
constexpr const char* menusKey = "window/outline/menus";
constexpr const char* barsKey = "window/outline/bars";
constexpr const char* docksKey = "window/outline/docks";
constexpr const char* pageKey = "window/outline/page";

constexpr int fieldsOfBar = 4;
constexpr int fieldsOfDock = 2;
constexpr int fieldsOfButton = 2;

/// A bar without buttons that takes the space of a bar with buttons.
class StandInBar final : public QToolBar
{
public:
    StandInBar(QSize size, QWidget* parent) : QToolBar(parent), m_size(size) {}

    QSize sizeHint() const override { return m_size; }
    /// A bar with buttons hides those for which a narrow window has no room.
    QSize minimumSizeHint() const override { return {1, m_size.height()}; }

private:
    QSize m_size;
};

template <typename Part>
QList<Part*> partsOf(const QMainWindow& window)
{
    return window.findChildren<Part*>(QString(), Qt::FindDirectChildrenOnly);
}

QStringList fieldsOf(const std::vector<WindowOutline::Bar>& bars)
{
    QStringList fields;
    for (const WindowOutline::Bar& bar : bars)
        fields << bar.name << QString::number(bar.area) << QString::number(bar.size.width())
               << QString::number(bar.size.height());
    return fields;
}

/// Settings may have been edited: an unknown area is the upper one, and sizes have limits. A bar that is too long is cut;
/// one that is too high would make the window higher, and it would stay so.
std::vector<WindowOutline::Bar> barsOf(const QStringList& fields)
{
    constexpr int longest = 4096;
    constexpr int highest = 96;
    const auto length = [](const QString& field, int most) { return std::clamp(field.toInt(), 0, most); };
    std::vector<WindowOutline::Bar> bars;
    for (int i = 0; i + fieldsOfBar <= fields.size(); i += fieldsOfBar)
        bars.push_back({fields[i],
                        fields[i + 1].toInt() == Qt::BottomToolBarArea ? Qt::BottomToolBarArea : Qt::TopToolBarArea,
                        QSize(length(fields[i + 2], longest), length(fields[i + 3], highest))});
    return bars;
}

QStringList fieldsOf(const std::vector<WindowOutline::Dock>& docks)
{
    QStringList fields;
    for (const WindowOutline::Dock& dock : docks)
        fields << dock.name << dock.title;
    return fields;
}

std::vector<WindowOutline::Dock> docksOf(const QStringList& fields)
{
    std::vector<WindowOutline::Dock> docks;
    for (int i = 0; i + fieldsOfDock <= fields.size(); i += fieldsOfDock)
        docks.push_back({fields[i], fields[i + 1]});
    return docks;
}

QStringList fieldsOf(const PageOutline& page)
{
    QStringList fields{page.title, page.text};
    for (const PageOutline::Button& button : page.buttons)
        fields << button.command << button.text;
    return fields;
}

PageOutline pageOf(const QStringList& fields)
{
    constexpr int firstButton = 2;
    PageOutline page{fields.value(0), fields.value(1), {}};
    for (int i = firstButton; i + fieldsOfButton <= fields.size(); i += fieldsOfButton)
        page.buttons.push_back({fields[i], fields[i + 1]});
    return page;
}

} // namespace

WindowOutline outlineOf(const QMainWindow& window, const QString& language, PageOutline page)
{
    WindowOutline outline;
    outline.language = language;
    outline.page = std::move(page);
    if (const auto* const menus = qobject_cast<const QMenuBar*>(window.menuWidget()))
        for (const QAction* const menu : menus->actions())
            if (menu->isVisible())
                outline.menus << menu->text();
    for (QToolBar* const bar : partsOf<QToolBar>(window))
        outline.bars.push_back({bar->objectName(), window.toolBarArea(bar), bar->sizeHint()});
    // The layout keeps the places of hidden docks.
    for (const QDockWidget* const dock : partsOf<QDockWidget>(window))
        if (!dock->isHidden())
            outline.docks.push_back({dock->objectName(), dock->windowTitle()});
    return outline;
}

void writeOutline(QSettings& settings, const WindowOutline& outline)
{
    settings.setValue(QLatin1String(languageKey), outline.language);
    settings.setValue(QLatin1String(menusKey), outline.menus);
    settings.setValue(QLatin1String(barsKey), fieldsOf(outline.bars));
    settings.setValue(QLatin1String(docksKey), fieldsOf(outline.docks));
    settings.setValue(QLatin1String(pageKey), fieldsOf(outline.page));
}

std::optional<WindowOutline> readOutline(const QSettings& settings, const QString& language)
{
    const auto list = [&settings](const char* key) { return settings.value(QLatin1String(key)).toStringList(); };
    const PageOutline page = pageOf(list(pageKey));
    if (page.title.isEmpty() || settings.value(QLatin1String(languageKey)).toString() != language)
        return std::nullopt;
    return WindowOutline{language, list(menusKey), barsOf(list(barsKey)), docksOf(list(docksKey)), page};
}

void showOutline(QMainWindow& window, const WindowOutline& outline)
{
    for (const QString& menu : outline.menus)
        window.menuBar()->addAction(menu);
    for (const WindowOutline::Bar& bar : outline.bars) {
        auto* const standIn = new StandInBar(bar.size, &window);
        standIn->setObjectName(bar.name);
        window.addToolBar(bar.area, standIn);
    }
    for (const WindowOutline::Dock& dock : outline.docks) {
        auto* const standIn = new QDockWidget(dock.title, &window);
        standIn->setObjectName(dock.name);
        window.addDockWidget(Qt::LeftDockWidgetArea, standIn);
    }
}

void removeOutlineMenus(QMainWindow& window)
{
    qDeleteAll(window.menuBar()->actions());
}

void removeOutlineDocks(QMainWindow& window)
{
    for (QDockWidget* const dock : partsOf<QDockWidget>(window))
        if (dock->widget() == nullptr)
            delete dock;
}

} // namespace Gui
