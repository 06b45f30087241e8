#include "UserSettings.h"

#include "KeltaTesting.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <sys/stat.h>

namespace {

using testing::HasSubstr;

/// A test with a home and a current folder of its own.
class UserSettings : public testing::Test
{
protected:
    UserSettings()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial"));
        QCoreApplication::setApplicationName(QStringLiteral("settings-test"));
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        qunsetenv("XDG_CONFIG_HOME");
        QDir(m_folder.path()).mkpath(QStringLiteral(".config/vxMaterial"));
        QDir(m_folder.path()).mkdir(QStringLiteral("current"));
        QDir::setCurrent(m_folder.filePath(QStringLiteral("current")));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.filePath(QStringLiteral(".config")));
    }
    ~UserSettings() override
    {
        QDir::setCurrent(m_before);
        qputenv("HOME", m_home);
    }

    QString file() const { return m_folder.filePath(QStringLiteral(".config/vxMaterial/settings-test.conf")); }
    static void write() { QSettings().setValue(QStringLiteral("a"), 7); }
    QStringList filesInCurrentFolder() const
    {
        return QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;

private:
    QString m_before = QDir::currentPath();
    QByteArray m_home = qgetenv("HOME");
};

TEST_F(UserSettings, AreInTheHomeOfTheUser)
{
    EXPECT_EQ(desktop::chooseUserSettings().toStdString(), "");
    write();
    EXPECT_TRUE(QFile::exists(file()));
}

TEST_F(UserSettings, AreNamedIfTheyAreDamaged)
{
    for (const QByteArray& content : {QByteArray("[files\nfolder\n\0\xff\n", 17), QByteArray(300, '\0'),
                                      QByteArray("[files]\nfolder=\xff\xfe\n"), QByteArray("[a]\nb=\xc3")})
    {
        vxtest::writeFile(file(), content);
        EXPECT_THAT(desktop::chooseUserSettings().toStdString(),
                    testing::AllOf(HasSubstr(file().toStdString()), HasSubstr("is damaged or cannot be read")));
    }
}

TEST_F(UserSettings, AreNotDamagedByAnyValue)
{
    QSettings().setValue(QStringLiteral("text"), QString::fromUtf8("\xe9\x92\xa2 \xc3\xa9\x01"));
    QSettings().setValue(QStringLiteral("bytes"), QByteArray("\0\xff\x80", 3));
    QSettings().sync();
    ASSERT_TRUE(QFile::exists(file()));
    EXPECT_EQ(desktop::chooseUserSettings().toStdString(), "");
}

TEST_F(UserSettings, AreNotReadFromAPipe)
{
    for (const QString& pipe : {file(), file() + ".lock", m_folder.filePath(".config/vxMaterial.conf")}) {
        ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        EXPECT_THAT(desktop::chooseUserSettings().toStdString(), HasSubstr("is not a regular file"));
        write();
        EXPECT_EQ(QSettings().value(QStringLiteral("a")), QVariant());
        QFile::remove(pipe);
    }
}

TEST_F(UserSettings, AreStoredNowhereWithoutAHome)
{
    for (const char* const home : {"", "relative", "/no/such/folder"}) {
        SCOPED_TRACE(home);
        qputenv("HOME", home);
        EXPECT_THAT(desktop::chooseUserSettings().toStdString(), HasSubstr("are not stored"));
        write();
        EXPECT_EQ(filesInCurrentFolder(), QStringList());
        EXPECT_FALSE(QFile::exists(QStringLiteral("/no/such/folder")));
        EXPECT_FALSE(QFile::exists(QStringLiteral("/.config/vxMaterial/settings-test.conf")));
    }
}

TEST_F(UserSettings, OfAProgramWithoutAUserAreNeverInTheCurrentFolder)
{
    desktop::chooseOwnSettings({});
    write();
    EXPECT_EQ(filesInCurrentFolder(), QStringList());
    EXPECT_FALSE(QFile::exists(file()));
}

} // namespace
