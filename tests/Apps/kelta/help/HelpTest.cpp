#include "Help.h"

#include "FilesTesting.h"
#include "GuideView.h"
#include "RecentFiles.h"

#include "Gui/ProjectExplorer.h"
#include "Gui/Translator.h"

#include <QDockWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>
#include <QtTest/QtTestGui>

#include <algorithm>
#include <functional>
#include <set>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

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

struct Title
{
    const char* language;
    const char* text;
};

constexpr const char* englishTitle = "kelta, the desktop application";
constexpr Title titles[] = {{"en", englishTitle},
                            {"de", "kelta, das Desktop-Programm"},
                            {"zh_CN", "kelta 桌面应用程序"},
                            // Another country, another script, and a language of which the program has no texts
                            {"de_AT", "kelta, das Desktop-Programm"},
                            {"zh_TW", englishTitle},
                            {"fr", englishTitle}};

TEST_F(Help, OpensTheGuideInTheLanguageOfTheProgram)
{
    for (const auto& [language, title] : titles) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QTest::keyClick(window.get(), Qt::Key_F1);
        EXPECT_TRUE(guide().isVisible()) << language;
        EXPECT_THAT(shown(), StartsWith(title)) << language;
        QTest::keyClick(&guide(), Qt::Key_F1);
        EXPECT_FALSE(guide().isVisible()) << language;
    }
}

/// Chooses a language in the menu "View > Language".
void chooseLanguage(const char* name)
{
    QMenu* const menu =
        Gui::GuiApplication::Instance->get_command_manager().findCommand("Std_Language")->action()->menu();
    Q_EMIT menu->aboutToShow();
    for (QAction* const action : menu->actions())
        if (action->text() == QString::fromUtf8(name))
            return action->trigger();
    FAIL() << name;
}

TEST_F(Help, ShowsTheGuideInAnotherLanguageOnceTheMenuChangesTheLanguage)
{
    QTest::keyClick(window.get(), Qt::Key_F1);
    chooseLanguage("Deutsch");
    QCoreApplication::processEvents();
    EXPECT_THAT(shown(), StartsWith("kelta, das Desktop-Programm"));
    EXPECT_TRUE(guide().isVisible());
    // Also if the guide is hidden, and is shown by the menu of docks.
    QTest::keyClick(&guide(), Qt::Key_Escape);
    chooseLanguage("简体中文");
    QCoreApplication::processEvents();
    window->toggleDock("Guide");
    EXPECT_THAT(shown(), StartsWith("kelta 桌面应用程序"));
    // A page that has no translation stays.
    guide().setSource(guide().source().resolved(QUrl("../project-files.md")));
    const std::string page = shown();
    EXPECT_GT(page.size(), 1000U);
    chooseLanguage("English");
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), page);
    ASSERT_TRUE(run("Std_Help"));
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_THAT(shown(), StartsWith(englishTitle));
}

/// Calls `visit` with each format of the text of a document.
void visitFormats(const QTextDocument& document, const std::function<void(const QTextCharFormat&)>& visit)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            visit(part.fragment().charFormat());
}

TEST_F(Help, HasTheSamePagesAndPicturesInEveryLanguage)
{
    QStringList namesInEnglish;
    for (const auto& [language, title] : titles) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QTest::keyClick(window.get(), Qt::Key_F1);
        QStringList names;
        visitFormats(*guide().document(), [&](const QTextCharFormat& format) {
            const QString name = format.isImageFormat() ? format.toImageFormat().name() : format.anchorHref();
            if (name.isEmpty())
                return;
            const QString file = guide().source().resolved(QUrl(name)).toLocalFile();
            EXPECT_TRUE(QFileInfo(file).isFile()) << file.toStdString();
            names << QFileInfo(file).fileName();
        });
        if (namesInEnglish.isEmpty())
            namesInEnglish = names;
        EXPECT_EQ(names, namesInEnglish) << language;
        QTest::keyClick(&guide(), Qt::Key_F1);
    }
    for (const char* const name : {"project-files.md", "module-guide.md", "curves-tab.png", "fit-tab.png"})
        EXPECT_TRUE(namesInEnglish.contains(QLatin1String(name))) << name;
}

TEST_F(Help, MakesPicturesAsWideAsTheTextAtMost)
{
    QTest::keyClick(window.get(), Qt::Key_F1);
    const QUrl picture = guide().source().resolved(QUrl("images/fit-tab.png"));
    const int whole = QImage(picture.toLocalFile()).width();
    ASSERT_GT(whole, 400);
    auto* const dock = qobject_cast<QDockWidget*>(guide().parentWidget());
    dock->setFloating(true);
    for (const int width : {300, 400, whole + 100, 350}) {
        dock->resize(width, 500);
        QCoreApplication::processEvents();
        const auto shownPicture = guide().document()->resource(QTextDocument::ImageResource, picture).value<QImage>();
        const int text = guide().viewport()->width() - 2 * static_cast<int>(guide().document()->documentMargin());
        ASSERT_GT(text, 0);
        EXPECT_EQ(shownPicture.width(), std::min(text, whole)) << width;
    }
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
