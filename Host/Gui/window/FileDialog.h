#pragma once

#include "Gui/GuiExport.h"

#include <QFileDialog>
#include <QString>
#include <QStringList>

namespace Gui {

/// Asks the user for files. The settings store the last folder.
class GUI_EXPORT FileDialog
{
public:
    /// Returns the path that the user chose; an empty text if the user cancelled. `folder` may have the name of a proposed
    /// file at its end. An empty `folder`, or a name alone, means the last folder.
    static QString getOpenFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    /// As above, for one or more files; empty if the user cancelled.
    static QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                        const QString& filter);
    /// As getOpenFileName(), for a file to write. Asks before an existing file is replaced. Adds the ending of the filter to a name
    /// without an ending.
    static QString getSaveFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});

    /// Sets the result of the next call, which then does not ask the user; for programs that a script runs. Several paths are
    /// separated by line breaks.
    static void answerNext(const QString& path);
    /// Drops the result that answerNext() has set. Returns false if a call has taken the result already, or if there is
    /// none.
    static bool dropAnswer();

private:
    static bool takeAnswer(QString& path);
};

} // namespace Gui
