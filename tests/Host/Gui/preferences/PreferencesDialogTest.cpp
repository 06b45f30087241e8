#include "GuiTesting.h"

#include "Gui/PreferencesPage.h"
#include "Gui/Translator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QVBoxLayout>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A page with one field. The field must not be empty.
class NamePage final : public Gui::PreferencesPage
{
public:
    explicit NamePage(std::vector<std::string>& stored) : m_stored(stored), m_name(new QLineEdit(this))
    {
        m_name->setObjectName(QStringLiteral("name"));
        m_name->setText(shown);
        setFocusProxy(m_name);
        (new QVBoxLayout(this))->addWidget(m_name);
        connect(m_name, &QLineEdit::textChanged, this, &NamePage::edited);
    }

    bool isChanged() const override { return m_name->text() != m_shown; }
    bool isValid() const override { return !m_name->text().isEmpty(); }
    void store() override
    {
        if (m_name->text() == QLatin1String("fault"))
            throw std::runtime_error("the page fails");
        m_shown = m_name->text();
        m_stored.push_back(m_shown.toStdString());
    }

private:
    static inline const QString shown = QStringLiteral("first");

    std::vector<std::string>& m_stored;
    QLineEdit* m_name;
    QString m_shown = shown;
};

class Preferences : public vxtest::Host
{
protected:
    Preferences()
    {
        contributions.addPreferencesPage({"Names", {"Test", "Names"}, [this] { return new NamePage(stored); }});
    }
    ~Preferences() override { Gui::Translator::instance()->chooseLanguage(QString()); }

    QDialog* open()
    {
        EXPECT_TRUE(run("Std_Preferences"));
        return dialog();
    }
    QDialog* dialog() const
    {
        for (QDialog* const found : window->findChildren<QDialog*>(QStringLiteral("preferences")))
            if (found->isVisible())
                return found;
        return nullptr;
    }
    QTabWidget& tabs() const { return *dialog()->findChild<QTabWidget*>(); }
    QComboBox& languages() const { return *dialog()->findChild<QComboBox*>(QStringLiteral("language")); }
    QLineEdit& name() const { return *dialog()->findChild<QLineEdit*>(QStringLiteral("name")); }
    QPushButton& button(QDialogButtonBox::StandardButton which) const
    {
        return *dialog()->findChild<QDialogButtonBox*>()->button(which);
    }
    void press(QDialogButtonBox::StandardButton which) const { button(which).click(); }
    static void type(QLineEdit& line, const char* text)
    {
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, QString::fromUtf8(text));
    }
    QString remark() const { return dialog()->findChild<QLabel*>(QStringLiteral("languageRemark"))->text(); }
    QStringList titles() const
    {
        QStringList texts;
        for (int index = 0; index < tabs().count(); ++index)
            texts << tabs().tabText(index);
        return texts;
    }

    std::vector<std::string> stored; ///< the names that pages have stored
};

TEST_F(Preferences, NameTheLanguageOfTheStartIfItIsNotTheChosenOne)
{
    open();
    EXPECT_EQ(remark(), "");
    press(QDialogButtonBox::Cancel);
    Gui::Translator::instance()->setLanguage(QStringLiteral("de"));
    open();
    EXPECT_TRUE(remark().contains(QLatin1String("Deutsch"))) << remark().toStdString();
    languages().setCurrentIndex(languages().findData(QStringLiteral("en")));
    press(QDialogButtonBox::Apply);
    EXPECT_EQ(remark(), "");
}

TEST_F(Preferences, HaveTheGeneralPageAndThoseOfModules)
{
    contributions.addPreferencesPage({"Names", {"Test", "Again"}, [this] { return new NamePage(stored); }});
    open();
    EXPECT_EQ(titles(), QStringList({"General", "Names"}));
    EXPECT_TRUE(dialog()->isVisible());
}

TEST_F(Preferences, OpenByTheirKeyAndOnlyOnce)
{
    window->activateWindow();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_NE(dialog(), nullptr);
    run("Std_Preferences");
    EXPECT_EQ(window->findChildren<QDialog*>(QStringLiteral("preferences")).size(), 1);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Preferences, BeginInTheFirstField)
{
    open();
    dialog()->activateWindow();
    EXPECT_TRUE(vxtest::waitFor([this] { return languages().hasFocus(); }));
    QTest::keyClick(&languages(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 1) << "the keyboard reaches the other pages";
}

TEST_F(Preferences, AreStoredByOk)
{
    open();
    type(name(), "second");
    press(QDialogButtonBox::Ok);
    EXPECT_THAT(stored, ElementsAre("second"));
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Preferences, AreNotStoredByCancel)
{
    open();
    type(name(), "second");
    press(QDialogButtonBox::Cancel);
    EXPECT_THAT(stored, IsEmpty());
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Preferences, AreStoredByApplyWhichIsEnabledOnlyForChanges)
{
    open();
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    type(name(), "second");
    EXPECT_TRUE(button(QDialogButtonBox::Apply).isEnabled());
    press(QDialogButtonBox::Apply);
    EXPECT_THAT(stored, ElementsAre("second"));
    ASSERT_NE(dialog(), nullptr);
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    press(QDialogButtonBox::Cancel);
    EXPECT_THAT(stored, ElementsAre("second")) << "what was applied stays";
}

TEST_F(Preferences, AreNotStoredIfTheyAreUnchanged)
{
    open();
    type(name(), "second");
    type(name(), "first");
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    press(QDialogButtonBox::Ok);
    EXPECT_THAT(stored, IsEmpty());
}

TEST_F(Preferences, StayOpenAtThePageThatCannotBeStored)
{
    open();
    type(name(), "");
    languages().setCurrentIndex(languages().findData(QStringLiteral("de")));
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Apply}) {
        tabs().setCurrentIndex(0);
        press(which);
        ASSERT_NE(dialog(), nullptr);
        EXPECT_EQ(tabs().currentIndex(), 1);
        EXPECT_EQ(dialog()->focusWidget(), &name());
        EXPECT_THAT(stored, IsEmpty());
        EXPECT_EQ(Gui::Translator::chosenLanguage(), QString()) << "no other page is stored either";
    }
    type(name(), "second");
    press(QDialogButtonBox::Ok);
    EXPECT_THAT(stored, ElementsAre("second"));
}

TEST_F(Preferences, ReportAPageThatFails)
{
    open();
    type(name(), "fault");
    press(QDialogButtonBox::Ok);
    EXPECT_THAT(lastMessage(), testing::HasSubstr("the page fails"));
}

TEST_F(Preferences, ReportAPageThatCannotBeMade)
{
    contributions.addPreferencesPage(
        {"Broken", {"Test", "Broken"}, []() -> Gui::PreferencesPage* { throw std::runtime_error("no page"); }});
    open();
    EXPECT_EQ(titles(), QStringList({"General", "Names"}));
    EXPECT_THAT(lastMessage(), testing::HasSubstr("no page"));
}

TEST_F(Preferences, ChangeTheLanguageAtOnceAndStoreIt)
{
    open();
    EXPECT_EQ(languages().currentData().toString(), QString());
    languages().setCurrentIndex(languages().findData(QStringLiteral("de")));
    press(QDialogButtonBox::Apply);
    EXPECT_EQ(Gui::Translator::instance()->language(), QStringLiteral("de"));
    EXPECT_EQ(Gui::Translator::chosenLanguage(), QStringLiteral("de"));
    EXPECT_EQ(button(QDialogButtonBox::Apply).isEnabled(), false);
    press(QDialogButtonBox::Ok);
    open();
    EXPECT_EQ(languages().currentData().toString(), QStringLiteral("de"));
    languages().setCurrentIndex(0);
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(Gui::Translator::chosenLanguage(), QString());
}

TEST_F(Preferences, KeepALanguageThatTheProgramDoesNotHave)
{
    QSettings().setValue(QStringLiteral("language"), QStringLiteral("tlh"));
    open();
    EXPECT_EQ(languages().currentIndex(), -1);
    type(name(), "second");
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(Gui::Translator::chosenLanguage(), QStringLiteral("tlh"));
}

TEST_F(Preferences, FitIntoASmallWindow)
{
    open();
    dialog()->resize(dialog()->minimumSizeHint());
    EXPECT_LE(dialog()->minimumSizeHint().height(), 300);
    EXPECT_LE(dialog()->minimumSizeHint().width(), 480);
    EXPECT_TRUE(dialog()->rect().contains(
        QRect(button(QDialogButtonBox::Ok).mapTo(dialog(), QPoint()), button(QDialogButtonBox::Ok).size())));
}

} // namespace
