#include "Gui/FileDialog.h"

#include "GuiTesting.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

namespace {

using Gui::FileDialog;

class FileDialogTest : public vxtest::Host
{
protected:
    FileDialogTest() { QSettings().remove(QStringLiteral("files")); }

    /// Asks for a file to write, and types `name` into the dialog; an empty name cancels it.
    QString save(const QString& name, const QString& start, const QString& filter) const
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&name] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            if (name.isEmpty())
                return dialog->reject();
            auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            line->setText(name);
            QTest::keyClick(line, Qt::Key_Return);
        });
        timer.start(20);
        return FileDialog::getSaveFileName(window.get(), QStringLiteral("Save"), start, filter);
    }

    QTemporaryDir folder;
};

TEST_F(FileDialogTest, ReturnsThePreparedPathOnce)
{
    FileDialog::answerNext(QStringLiteral("/a/b.json"));
    EXPECT_EQ(FileDialog::getSaveFileName(nullptr, {}, {}, {}), "/a/b.json");
    FileDialog::answerNext({});
    EXPECT_EQ(FileDialog::getOpenFileName(nullptr, {}, {}, {}), "");
    // The next request is a real dialog.
    EXPECT_EQ(save({}, folder.path(), QStringLiteral("All (*)")), "");
}

TEST_F(FileDialogTest, GivesANameTheEndingOfTheFilter)
{
    const QString filter = QStringLiteral("JSON file(*.json);;All files(*.*)");
    EXPECT_EQ(save(QStringLiteral("steel"), folder.path(), filter), folder.filePath(QStringLiteral("steel.json")));
    EXPECT_EQ(save(QStringLiteral("steel.txt"), folder.path(), filter), folder.filePath(QStringLiteral("steel.txt")));
    EXPECT_EQ(save(QStringLiteral("steel"), folder.path(), QStringLiteral("All (*)")),
              folder.filePath(QStringLiteral("steel")));
}

TEST_F(FileDialogTest, RemembersTheFolderLastUsed)
{
    const QString filter = QStringLiteral("All (*)");
    ASSERT_EQ(save(QStringLiteral("a"), folder.path(), filter), folder.filePath(QStringLiteral("a")));
    EXPECT_EQ(save(QStringLiteral("b"), {}, filter), folder.filePath(QStringLiteral("b")));
}

TEST_F(FileDialogTest, DoesNotRememberAFolderThatWasCancelled)
{
    EXPECT_EQ(save({}, folder.path(), QStringLiteral("All (*)")), "");
    EXPECT_FALSE(QSettings().contains(QStringLiteral("files/folder")));
}

TEST(PreparedAnswer, IsDroppedIfNobodyAskedForIt)
{
    FileDialog::answerNext(QStringLiteral("/a/b.json"));
    EXPECT_TRUE(FileDialog::dropAnswer());
    EXPECT_FALSE(FileDialog::dropAnswer());
    FileDialog::answerNext({});
    EXPECT_EQ(FileDialog::getOpenFileName(nullptr, {}, {}, {}), QString());
    EXPECT_FALSE(FileDialog::dropAnswer()) << "the call has taken it";
}

} // namespace
