#include "GuiTesting.h"

#include <QMenu>

#include <initializer_list>
#include <stdexcept>

namespace vxtest {

void TestProject::init()
{
    initSubclass(type, "Test::Project", "Obj::Project",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestProject); });
    data.setParent(Obj::Project::get_property_data_ref());
}

void TestProject::collect_frontend_data()
{
    if (collectFails)
        throw std::runtime_error("no solver");
    ++collections;
}

void OtherProject::init()
{
    initSubclass(type, "Test::OtherProject", "Obj::Project",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new OtherProject); });
}

TestObject::TestObject()
{
    registerProperty(data, count, "Count", "Values", Obj::PropertyType::none, "How many");
    registerProperty(data, fixed, "Fixed", "Info", Obj::PropertyType::readOnly, "Cannot be changed");
    registerProperty(data, hidden, "Secret", "Info", Obj::PropertyType::hidden, "Nobody sees it");
}

void TestObject::init()
{
    initSubclass(type, "Test::Object", "Obj::ProjectObject",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestObject); });
    data.setParent(Obj::ProjectObject::get_property_data_ref());
}

TypedObject::TypedObject()
{
    registerProperty(data, length, "Length", "Values", Obj::PropertyType::none, "How long");
    registerProperty(data, active, "Active", "Values", Obj::PropertyType::none, "Whether it works");
    registerProperty(data, locked, "Locked", "Values", Obj::PropertyType::readOnly, "Whether it is locked");
    registerProperty(data, kind, "Kind", "Values", Obj::PropertyType::none, "What it is");
    registerProperty(data, partner, "Partner", "Values", Obj::PropertyType::none, "What it works with");
}

void TypedObject::init()
{
    initSubclass(type, "Test::Typed", "Obj::ProjectObject",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TypedObject); });
    data.setParent(Obj::ProjectObject::get_property_data_ref());
}

TestNode::TestNode() : color(Obj::Color{0.5F, 0.25F, 1.0F, 0.0F})
{
    pixmapName = "kelta_paste";
    registerProperty(data, color, "Color", "View", Obj::PropertyType::passive, "How it looks");
}

void TestNode::init()
{
    initSubclass(type, "Test::Node", "Gui::ViewFeederProjectObject",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestNode); });
    data.setParent(Gui::ViewFeederProjectObject::get_property_data_ref());
}

bool TestNode::setEdit(int mode)
{
    editModes.push_back(mode);
    return false;
}

void TestNode::build_context_menu(const char*, Gui::MenuItem* menu)
{
    *menu << "Std_Copy"
          << "Separator"
          << "Std_Suppress"
          << "No_Such";
}

void TestNode::build_context_menu(QMenu* menu, QObject* receiver, const char* slot)
{
    menu->addAction(QStringLiteral("Show it"), receiver, slot)->setData(7);
}

TestProjectNode::TestProjectNode()
{
    pixmapName = "kelta_copy";
    registerProperty(data, order, "Order", "View", Obj::PropertyType::passive, "Where it is");
}

void TestProjectNode::init()
{
    initSubclass(type, "Test::ProjectNode", "Gui::ViewFeederProject",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestProjectNode); });
    data.setParent(Gui::ViewFeederProject::get_property_data_ref());
}

void TestEditor::init()
{
    initSubclass(type, "Test::Editor", "Gui::MDIWindow",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestEditor); });
}

void TestEditor::editObject(Gui::GuiProject& project, Obj::ProjectObject& object)
{
    MDIWindow::editObject(project, object);
    shownLabel = object.label.getValue();
}

TestCommand::TestCommand(const char* name, std::function<void()> action, int flags, const QKeySequence& keys)
    : Command(name), m_action(std::move(action))
{
    menuText = "&Do it";
    toolTip = "Does it";
    statusTip = "Does it at once";
    whatsThis = "What it does";
    shortcut = keys;
    typeFlags = flags;
}

TestCommand::~TestCommand() = default;

void TestCommand::activated(int index)
{
    lastIndex = index;
    if (m_action)
        m_action();
}

void TestWorkbench::init()
{
    initSubclass(type, "Test::Workbench", "Gui::StdSimModule",
                 []() -> void* { return static_cast<Kelta::RootClass*>(new TestWorkbench); });
}

namespace {

/// Makes a menu or toolbar with this text and these commands.
template <typename Item>
Item* makeItem(const char* text, std::initializer_list<const char*> itemCommands)
{
    auto item = std::make_unique<Item>();
    item->setCommand(text);
    for (const char* const command : itemCommands)
        *item << command;
    return item.release();
}

} // namespace

Gui::MenuItem* TestWorkbench::build_menu_bar() const
{
    auto root = std::make_unique<Gui::MenuItem>();
    auto* const test = makeItem<Gui::MenuItem>("&Test", {"Std_Copy", "Separator"});
    *test << makeItem<Gui::MenuItem>("&More", {"Std_Undo", "Separator", "Std_Redo"});
    auto* const empty = makeItem<Gui::MenuItem>("&Empty", {"No_Such"});
    *empty << makeItem<Gui::MenuItem>("Empty &too", {"Separator"});
    *test << "Separator" << empty;
    *root << test;
    return root.release();
}

Gui::ToolBarGadget* TestWorkbench::build_toolbars() const
{
    auto root = std::make_unique<Gui::ToolBarGadget>();
    auto* const test = makeItem<Gui::ToolBarGadget>("Test", {"Std_Copy"});
    *test << makeItem<Gui::ToolBarGadget>("&More", {"Std_Undo"});
    *root << test << makeItem<Gui::ToolBarGadget>("Messages", {"Std_Paste"});
    return root.release();
}

void TestWorkbench::build_context_menu(const char* recipient, Gui::MenuItem* menu) const
{
    if (std::string(recipient) == "Tree")
        *menu << "Std_SelectAll";
}

void TestWorkbench::build_context_popup_menu(Gui::MenuItem* menu) const
{
    *menu << "Std_About";
}

Gui::ToolBarGadget* TestWorkbench::build_docking_windows() const
{
    auto root = std::make_unique<Gui::ToolBarGadget>();
    *root << "MessageLog"
          << "NoSuchDock";
    return root.release();
}

Host::Host()
{
    TestWorkbench::activations = 0;
    TestWorkbench::deactivations = 0;
    TestProject::init();
    OtherProject::init();
    TestEditor::init();
    TestObject::init();
    TypedObject::init();
    TestNode::init();
    TestProjectNode::init();
    TestWorkbench::init();
    window = std::make_unique<Gui::MainWindow>(contributions);
    window->setWorkbench("Gui::StdSimModule");
    window->show();
}

Host::~Host()
{
    undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    selection().clear();
}

std::string Host::lastMessage()
{
    const auto& messages = Kelta::MessageLog::instance().messages();
    return messages.empty() ? std::string() : messages.back().text.toStdString();
}

TestProject& Host::makeProject(const char* name)
{
    return *static_cast<TestProject*>(Obj::Application::instance().createProject("Test::Project", name));
}

TestObject& Host::addObject(Obj::Project& project, const char* label)
{
    return *static_cast<TestObject*>(project.add_object("Test::Object", label));
}

TypedObject& Host::addTyped(Obj::Project& project, const char* label)
{
    return *static_cast<TypedObject*>(project.add_object("Test::Typed", label));
}

TestNode& Host::nodeOf(Obj::ProjectObject& object)
{
    return dynamic_cast<TestNode&>(*Gui::GuiApplication::Instance->get_view_feeder(&object));
}

void Host::focusExplorer() const
{
    window->activateWindow();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    model().synchronize();
    explorer().expandAll();
    explorer().setFocus();
}

QString Host::shownText(const Obj::ProjectObject& object) const
{
    model().synchronize();
    return model().indexOf(object).data().toString();
}

} // namespace vxtest
