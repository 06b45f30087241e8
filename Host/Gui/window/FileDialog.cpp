#include "Gui/FileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include <optional>
#include <utility>

namespace Gui {

namespace {

constexpr const char* folderKey = "files/folder";

std::optional<QString>& preparedAnswer()
{
    static std::optional<QString> answer;
    return answer;
}

/// Returns the folder or file with which a dialog begins. A name without a folder is in the folder that was used last.
QString startFolder(const QString& proposed)
{
    const QString last = QSettings().value(QLatin1String(folderKey)).toString();
    if (proposed.isEmpty() || last.isEmpty())
        return proposed.isEmpty() ? last : proposed;
    return QDir(last).filePath(proposed);
}

QString remembered(const QString& path)
{
    if (!path.isEmpty())
        QSettings().setValue(QLatin1String(folderKey), QFileInfo(path).absolutePath());
    return path;
}

/// Returns the ending "json" of a filter "JSON file(*.json)"; an empty text if the filter has no ending or allows any.
QString endingOf(const QString& filter)
{
    static const QRegularExpression ending(QStringLiteral("\\(\\*\\.(\\w+)\\)"));
    return ending.match(filter).captured(1);
}

} // namespace

QString FileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& folder,
                                    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    QString path;
    if (takeAnswer(path))
        return path;
    return remembered(
        QFileDialog::getOpenFileName(parent, caption, startFolder(folder), filter, selectedFilter, options));
}

QStringList FileDialog::getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                         const QString& filter)
{
    QString answer;
    if (takeAnswer(answer))
        return answer.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList paths = QFileDialog::getOpenFileNames(parent, caption, startFolder(folder), filter);
    remembered(paths.value(0));
    return paths;
}

QString FileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& folder,
                                    const QString& filter, QString* selectedFilter, QFileDialog::Options options)
{
    QString path;
    if (takeAnswer(path))
        return path;
    QFileDialog dialog(parent, caption, startFolder(folder), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOptions(options);
    dialog.setDefaultSuffix(endingOf(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected,
                     [&dialog](const QString& chosen) { dialog.setDefaultSuffix(endingOf(chosen)); });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    if (selectedFilter != nullptr)
        *selectedFilter = dialog.selectedNameFilter();
    return remembered(dialog.selectedFiles().constFirst());
}

void FileDialog::answerNext(const QString& path)
{
    preparedAnswer() = path;
}

bool FileDialog::dropAnswer()
{
    return std::exchange(preparedAnswer(), std::nullopt).has_value();
}

bool FileDialog::takeAnswer(QString& path)
{
    if (!preparedAnswer())
        return false;
    path = *std::exchange(preparedAnswer(), std::nullopt);
    return true;
}

} // namespace Gui
