#include "Help.h"

#include "FilesTesting.h"
#include "GuideView.h"
#include "RecentFiles.h"

#include "Gui/ProjectExplorer.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QtTest/QtTestGui>

#include <set>

namespace {

using testing::HasSubstr;

class Help : public vxtest::Files
{
protected:
    Help()
    {
        desktop::addHelp(*Gui::GuiApplication::Instance, *files);
        desktop::listRecentFilesOnWelcomePage(Gui::GuiApplication::Instance->contributions(), *files);
        QCoreApplication::processEvents();
        window->activateWindow();
        EXPECT_TRUE(vxtest::waitUntilActive(window.get()));
    }

    desktop::GuideView& guide() const { return *window->findChild<desktop::GuideView*>(); }
    std::string shown() const { return guide().toPlainText().toStdString(); }
};

constexpr auto multiline = QRegularExpression::MultilineOption;

/// Returns "key: command" for each row of the table below "## Keys" in the guide.
std::multiset<std::string> keysInGuide(const QByteArray& text)
{
    std::multiset<std::string> rows;
    const QString all = QString::fromUtf8(text);
    const int begin = all.indexOf(QStringLiteral("\n## Keys\n"));
    const int end = all.indexOf(QStringLiteral("\n### "), begin);
    const QRegularExpression row(QStringLiteral("^\\| `([^`]+)` \\| ([^|]+) \\|$"),
                                 QRegularExpression::MultilineOption);
    for (auto found = row.globalMatch(all.mid(begin, end - begin)); found.hasNext();) {
        const auto match = found.next();
        rows.insert((match.captured(1) + ": " + match.captured(2)).toStdString());
    }
    return rows;
}

TEST_F(Help, ListsTheKeysOfAllCommandsInTheGuide)
{
    std::multiset<std::string> keys;
    for (const Gui::Command* const command : Gui::GuiApplication::Instance->get_command_manager().getCommands()) {
        const QString key = command->get_shortcut().toString(QKeySequence::PortableText);
        // Two commands have the key Delete; in the tree the command of the host has it.
        if (!key.isEmpty() && command->getName() != "Mat_Delete")
            keys.insert((key + ": " + command->get_menu_info().remove('&').remove("...")).toStdString());
    }
    EXPECT_EQ(keysInGuide(contentOf(QStringLiteral(KELTA_GUIDE))), keys);
}

TEST_F(Help, OpensTheGuideByF1)
{
    EXPECT_FALSE(guide().isVisible());
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_TRUE(guide().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &guide());
    EXPECT_THAT(shown(), HasSubstr("kelta, the desktop application"));
    // Other pages of the documentation are installed beside it.
    const QStringList pages{"project-files.md", "module-guide.md"};
    for (const QString& page : pages) {
        EXPECT_THAT(guide().toMarkdown().toStdString(), HasSubstr("(" + page.toStdString() + ")"));
        guide().setSource(guide().source().resolved(QUrl(page)));
        EXPECT_GT(shown().size(), 1000U) << page.toStdString();
        guide().backward();
    }
    EXPECT_THAT(shown(), HasSubstr("kelta, the desktop application"));
}

TEST_F(Help, ShowsTheKeysInTheProgram)
{
    ASSERT_TRUE(run("Std_Keys"));
    EXPECT_TRUE(guide().isVisible());
    for (const Gui::Command* const command : Gui::GuiApplication::Instance->get_command_manager().getCommands()) {
        const QString key = command->get_shortcut().toString(QKeySequence::NativeText);
        EXPECT_THAT(shown(), HasSubstr(key.toStdString()));
    }
    EXPECT_THAT(shown(), HasSubstr("New material project"));
    ASSERT_TRUE(run("Std_Help"));
    EXPECT_THAT(shown(), HasSubstr("kelta, the desktop application"));
}

TEST_F(Help, ListsEveryKeyOnce)
{
    ASSERT_TRUE(run("Std_Keys"));
    EXPECT_EQ(guide().toPlainText().count(QRegularExpression(QStringLiteral("^Del$"), multiline)), 1);
    EXPECT_EQ(
        guide().toPlainText().count(QRegularExpression(QStringLiteral("^Ctrl\\+Y, Ctrl\\+Shift\\+Z$"), multiline)) +
            guide().toPlainText().count(QRegularExpression(QStringLiteral("^Ctrl\\+Shift\\+Z, Ctrl\\+Y$"), multiline)),
        1);
    for (const char* const text :
         {"F2 or Return, then Return or Escape", "selects a library material", "closes the guide"})
        EXPECT_THAT(shown(), HasSubstr(text));
}

TEST_F(Help, ClosesTheGuideByASecondF1AndByEscape)
{
    newProject();
    addMaterial("First");
    editModulus(addMaterial("Second"), "2e11");
    const Gui::MDIWindow* const inFront = window->get_active_mdi_window();
    editModulus(*findMaterial("First"), "2e11");
    window->set_active_mdi_window(window->editorOf(*findMaterial("Second")));
    const QWidget* const before = QApplication::focusWidget();
    for (const auto key : {Qt::Key_F1, Qt::Key_Escape}) {
        QTest::keyClick(window.get(), Qt::Key_F1);
        ASSERT_EQ(QApplication::focusWidget(), &guide());
        QTest::keyClick(&guide(), key);
        EXPECT_FALSE(guide().isVisible());
        EXPECT_EQ(window->get_active_mdi_window(), inFront);
        EXPECT_EQ(QApplication::focusWidget(), before);
    }
    // Where the list of keys is shown, F1 leads to the guide.
    ASSERT_TRUE(run("Std_Keys"));
    QTest::keyClick(&guide(), Qt::Key_F1);
    EXPECT_TRUE(guide().isVisible());
    EXPECT_THAT(shown(), HasSubstr("kelta, the desktop application"));
}

TEST_F(Help, LeavesTheExplorerAsWideAsItIs)
{
    newProject();
    editModulus(addMaterial(), "2e11");
    window->resizeWithDocks(QSize(1024, 700));
    QCoreApplication::processEvents();
    const int width = window->getProjectExplorer().width();
    QTest::keyClick(window.get(), Qt::Key_F1);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->getProjectExplorer().width(), width);
    EXPECT_LT(guide().width(), 1024 / 3);
    QTest::keyClick(&guide(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->getProjectExplorer().width(), width);
}

TEST_F(Help, FitsIntoASmallScreenBesideAnEditorAndTheMessages)
{
    newProject();
    editModulus(addMaterial(), "2e11");
    window->showMessages();
    QTest::keyClick(window.get(), Qt::Key_F1);
    QCoreApplication::processEvents();
    // A screen of 1024 x 700 at 200 %, without the frame of the window.
    window->resize(500, 310);
    EXPECT_EQ(window->size(), QSize(500, 310));
}

TEST_F(Help, SaysWhichPageIsMissing)
{
    EXPECT_THAT(guide().loadResource(QTextDocument::MarkdownResource, QUrl("file:///none.md")).toString().toStdString(),
                HasSubstr("/none.md of the guide cannot be read"));
}

TEST_F(Help, OpensACopyOfTheExample)
{
    ASSERT_TRUE(run("Std_OpenExample"));
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_GE(currentProject()->getObjectCount(), 3U);
    for (const Obj::ProjectObject* const object : currentProject()->getObjects())
        EXPECT_EQ(object->getObjectState(), Obj::eVXObjectState::Ready) << object->label.getValue();
    EXPECT_EQ(files->getFile(*currentProject()), "");
    EXPECT_FALSE(isModified());
    EXPECT_TRUE(desktop::RecentFiles::list().isEmpty());
    ASSERT_TRUE(run("Std_Save", path("mine.vxmat")));
    EXPECT_TRUE(files->getFile(*currentProject()).endsWith("mine.vxmat"));
}

TEST_F(Help, IsOfferedOnTheWelcomePageWithTheRecentFiles)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_Save", path("A & B.vxmat")));
    ASSERT_TRUE(closeProject());
    window->updateCommands();
    const auto* const page = window->findChild<QWidget*>(QStringLiteral("welcomePage"));
    EXPECT_TRUE(page->findChild<QPushButton*>(QStringLiteral("Std_OpenExample"))->isVisible());
    auto* const link = page->findChild<QPushButton*>(QStringLiteral("welcomeLink"));
    ASSERT_NE(link, nullptr);
    EXPECT_TRUE(link->text().startsWith("A && B.vxmat"));
    QTest::mouseClick(link, Qt::LeftButton);
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_NE(findMaterial("Steel"), nullptr);
}

} // namespace
