#include "window/WelcomePage.h"

#include "Gui/GuiApplication.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gui {

namespace {

/// What can be done at one step; the first command of a step has the keyboard.
struct Offer
{
    const char* command;
    int step;
};

constexpr Offer offers[] = {{"Mat_NewDoc", 0}, {"Std_Open", 0}, {"Mat_AddMaterial", 1}, {"Mat_Edit", 2}};

Command* findCommand(const char* name)
{
    return GuiApplication::Instance->get_command_manager().find_command(name);
}

} // namespace

WelcomePage::WelcomePage(QWidget* parent) : QWidget(parent), m_title(new QLabel(this)), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("welcomePage"));
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    m_title->setFont(font);
    m_title->setAlignment(Qt::AlignCenter);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);

    auto* const layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addSpacing(12);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const Offer& offer : offers) {
        addButton(offer.command);
        buttons->addWidget(m_buttons.last());
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addStretch(3);
}

WelcomePage::~WelcomePage() = default;

void WelcomePage::refresh()
{
    const Obj::Project* const project = Obj::Application::get_current_project();
    int step = 0;
    if (project != nullptr)
        step = project->get_object_count() == 0 ? 1 : 2;
    const bool canBegin = findCommand("Mat_NewDoc") != nullptr;
    const bool canOpen = findCommand("Std_Open") != nullptr;
    const QString titles[] = {canBegin ? tr("No project is open") : tr("The materials module is missing"),
                              tr("The project has no materials yet"), tr("No material is open")};
    const QString beginning =
        canOpen ? tr("A material project holds the materials of a model. Begin with a new one, or open a saved one.")
                : tr("A material project holds the materials of a model. Begin with a new one.");
    const QString texts[] = {
        canBegin ? beginning : tr("The messages tell why it could not be loaded."),
        tr("Add a material; it begins as structural steel, and the editor offers 25 others and every quantity."),
        tr("Double-click a material in the project explorer, or select one and choose Edit.")};
    m_title->setText(titles[step]);
    m_text->setText(texts[step]);
    setFocusProxy(nullptr);
    for (int i = 0; i < m_buttons.size(); ++i) {
        const Command* const command = findCommand(offers[i].command);
        const bool isOffered = command != nullptr && offers[i].step == step;
        m_buttons[i]->setVisible(isOffered);
        if (command != nullptr)
            m_buttons[i]->setText(command->get_menu_info());
        if (isOffered && focusProxy() == nullptr)
            setFocusProxy(m_buttons[i]);
    }
    // The command itself would do nothing then, and say nothing.
    m_buttons.last()->setEnabled(TreeSelectionSingleton::instance().get_count() != 0);
}

void WelcomePage::addButton(const char* commandName)
{
    auto* const button = new QPushButton(this);
    button->setObjectName(QLatin1String(commandName));
    connect(button, &QPushButton::clicked, this,
            [name = std::string(commandName)] { GuiApplication::Instance->get_command_manager().run_command(name); });
    m_buttons << button;
}

} // namespace Gui
