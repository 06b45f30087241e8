#include "Gui/Translator.h"

#include "GuiTesting.h"

#include "Gui/MessageLogView.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

using Gui::Translator;
using testing::HasSubstr;

class Language : public vxtest::Host
{
protected:
    ~Language() override { Translator::instance()->setLanguage(QStringLiteral("en")); }

    QStringList menus() const
    {
        QStringList texts;
        for (const QAction* const action : window->menuBar()->actions())
            texts << action->text();
        return texts;
    }
};

TEST_F(Language, IsEnglishInTests)
{
    EXPECT_EQ(Translator::instance()->language(), "en");
    EXPECT_EQ(menus().first(), "&File");
}

TEST_F(Language, ChangesAllTextsOfTheWindow)
{
    Translator::instance()->setLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menus().first(), "&Datei");
    EXPECT_EQ(window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"))->windowTitle(), "Eigenschaften");
    EXPECT_EQ(commands().findCommand("Std_Copy")->action()->text(), "&Kopieren");
    EXPECT_EQ(panel().headerItem()->text(1), "Wert");
    EXPECT_TRUE(vxtest::waitFor(
        [this] { return panel().topLevelItem(0)->text(0) == QStringLiteral("Nichts ist ausgewählt."); }));
    EXPECT_EQ(explorer().accessibleName(), "Projektbaum");
    EXPECT_EQ(window->getMessageLog().accessibleName(), "Meldungen");
    Translator::instance()->setLanguage(QStringLiteral("zh_CN"));
    QCoreApplication::processEvents();
    EXPECT_EQ(commands().findCommand("Std_Copy")->action()->text(), QStringLiteral("复制(&C)"));
    Translator::instance()->setLanguage(QStringLiteral("en"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menus().first(), "&File");
    EXPECT_EQ(panel().headerItem()->text(1), "Value");
}

TEST_F(Language, WithACountryIsServedByTheLanguageAlone)
{
    Translator::instance()->setLanguage(QStringLiteral("de_AT"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menus().first(), "&Datei");
}

TEST_F(Language, ThatIsNotThereLeavesTheTextsAsTheyAre)
{
    const std::size_t messages = Kelta::MessageLog::instance().messages().size();
    Translator::instance()->setLanguage(QStringLiteral("xx"));
    QCoreApplication::processEvents();
    EXPECT_EQ(menus().first(), "&File");
    EXPECT_EQ(Kelta::MessageLog::instance().messages().size(), messages);
}

TEST_F(Language, ReportsATranslationThatCannotBeRead)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("broken_yy.qm")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("this is no translation");
    file.close();
    Translator::instance()->addFolder(folder.path());
    Translator::instance()->addFolder(folder.path());
    EXPECT_EQ(Translator::instance()->folders().count(folder.path()), 1);
    Translator::instance()->setLanguage(QStringLiteral("yy"));
    EXPECT_THAT(lastMessage(), HasSubstr("broken_yy.qm cannot be read;"));
    EXPECT_EQ(menus().first(), "&File");
}

/// Returns the beginning of a translation file.
QByteArray magic()
{
    return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
}

struct Damage
{
    const char* what;
    const char* sections; ///< hexadecimal
};

const Damage damages[] = {
    {"a message after the end", "42 00000008 00000001 40000000  69 00000001 01"},
    {"a text that is longer than the file", "42 00000008 00000001 00000000  69 00000006 03 7ffffffe 01"},
    {"half a position", "42 00000006 00000001 0000  69 00000001 01"},
    {"a text with a negative length", "42 00000008 00000001 00000000  69 00000006 03 feffffff 01"},
    {"a table of contexts that is cut", "2f 00000004 00ff 0001"},
    {"a table of no contexts", "2f 00000002 0000"},
    {"a context without an end", "2f 00000006 0001 0001 05 61"},
    {"a section that is cut", "69 000000ff 01"},
    {"another file that it needs", "96 00000004 00000000"},
};

TEST_F(Language, ReportsATranslationThatIsDamaged)
{
    const QTemporaryDir folder;
    Translator::instance()->addFolder(folder.path());
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.what);
        QFile file(folder.filePath(QStringLiteral("damaged_ww.qm")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(magic() + QByteArray::fromHex(damage.sections));
        file.close();
        Kelta::MessageLog::instance().clear();
        Translator::instance()->setLanguage(QStringLiteral("ww"));
        ASSERT_FALSE(Kelta::MessageLog::instance().messages().empty());
        EXPECT_THAT(lastMessage(), HasSubstr("damaged_ww.qm cannot be read;"));
    }
}

TEST_F(Language, IsThatOfQtsOwnTextsToo)
{
    const QDir folder(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (!folder.exists(QStringLiteral("qtbase_de.qm")))
        GTEST_SKIP() << "Qt's translations are not installed (Debian's qttranslations5-l10n)";
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    Translator::instance()->setLanguage(QStringLiteral("de_AT"));
    EXPECT_EQ(cancel(), "Abbrechen");
    Translator::instance()->setLanguage(QStringLiteral("zh_CN"));
    EXPECT_EQ(cancel(), QStringLiteral("取消"));
    Translator::instance()->setLanguage(QStringLiteral("xx"));
    EXPECT_EQ(cancel(), "Cancel");
}

TEST_F(Language, IsThatOfDatesToo)
{
    const QDateTime time(QDate(2026, 2, 1), QTime(15, 4));
    const auto shown = [time] { return Translator::instance()->locale().toString(time, QLocale::ShortFormat); };
    EXPECT_THAT(shown().toStdString(), HasSubstr("1 Feb 2026"));
    Translator::instance()->setLanguage(QStringLiteral("de"));
    EXPECT_EQ(shown(), "01.02.26 15:04");
    Translator::instance()->setLanguage(QStringLiteral("zh_CN"));
    EXPECT_THAT(shown().toStdString(), HasSubstr("2026/2/1"));
}

TEST_F(Language, SaysWhenItChanges)
{
    QSignalSpy spy(Translator::instance(), &Translator::languageChanged);
    Translator::instance()->setLanguage(QStringLiteral("de"));
    Translator::instance()->refresh();
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(Language, IsChosenInViewAtOnceAndKeptForTheNextStart)
{
    QMenu* const menu = commands().findCommand("Std_Language")->action()->menu();
    ASSERT_NE(menu, nullptr);
    const auto choose = [menu](const QString& text) {
        Q_EMIT menu->aboutToShow();
        for (QAction* const action : menu->actions())
            if (action->text() == text)
                action->trigger();
        QCoreApplication::processEvents();
    };
    Q_EMIT menu->aboutToShow();
    QStringList texts;
    for (const QAction* const action : menu->actions())
        if (!action->isSeparator())
            texts << action->text();
    EXPECT_EQ(texts, QStringList({"&System", "Deutsch", "English", QStringLiteral("简体中文")}));
    EXPECT_TRUE(menu->actions()[0]->isChecked());

    choose(QStringLiteral("Deutsch"));
    EXPECT_EQ(menus().first(), "&Datei");
    EXPECT_EQ(Translator::chosenLanguage(), "de");
    Translator::instance()->setLanguage(QStringLiteral("en"));
    Translator::instance()->restoreLanguage();
    EXPECT_EQ(Translator::instance()->language(), "de");
    EXPECT_TRUE(run("Std_Language"));
    EXPECT_EQ(Translator::chosenLanguage(), "");
    EXPECT_EQ(Translator::instance()->language(), QLocale::system().name());
}

} // namespace
