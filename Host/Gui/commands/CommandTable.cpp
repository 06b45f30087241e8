#include "Gui/CommandTable.h"

#include "Gui/CommandController.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace Gui {

namespace {

class TableCommand final : public Command
{
public:
    TableCommand(CommandRow row, const char* context)
        : Command(row.name),
          m_context(context),
          m_run(std::move(row.run)),
          m_isApplicable(std::move(row.isApplicable)),
          m_fillMenu(std::move(row.fillMenu))
    {
        menuText = row.menuText;
        toolTip = row.toolTip;
        statusTip = row.toolTip;
        whatsThis = row.toolTip;
        pixmap = row.pixmap;
        shortcut = row.shortcut;
        secondShortcut = row.secondShortcut;
        typeFlags = row.typeFlags;
        isChecked = std::move(row.isChecked);
        subject = std::move(row.subject);
    }

    const char* getClassName() const override { return m_context; }
    QAction* new_action(QObject* parent) override;
    void activated(int) override { m_run(); }
    bool is_applicable() override { return !m_isApplicable || m_isApplicable(); }

private:
    void refill(QMenu& menu) const;

    const char* m_context;
    std::function<void()> m_run;
    std::function<bool()> m_isApplicable;
    std::function<void(QMenu&)> m_fillMenu;
};

QAction* TableCommand::new_action(QObject* parent)
{
    QAction* const action = Command::new_action(parent);
    if (!m_fillMenu)
        return action;
    // The window of the action owns the menu.
    auto* const menu = new QMenu(qobject_cast<QWidget*>(parent));
    action->setMenu(menu);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu] { refill(*menu); });
    return action;
}

void TableCommand::refill(QMenu& menu) const
{
    menu.clear();
    m_fillMenu(menu);
}

} // namespace

void addCommands(CommandController& controller, const char* context, std::vector<CommandRow> rows)
{
    for (CommandRow& row : rows)
        controller.new_command(new TableCommand(std::move(row), context));
}

} // namespace Gui
