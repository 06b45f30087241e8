#pragma once

#include "Gui/GuiExport.h"

#include <QFileDialog>
#include <QString>

namespace Gui {

/// Asks the user for files. The folder last used is kept in the settings.
class GUI_EXPORT FileDialog
{
public:
    /// Returns the path that the user chose; an empty text if the user cancelled. An empty `folder` means the folder last
    /// used.
    static QString getOpenFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    /// Likewise for a file to write. Asks before an existing file is replaced. A name without an ending gets the ending of
    /// the filter.
    static QString getSaveFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});

    /// Sets the result of the next call, which then does not ask the user; for programs that a script runs.
    static void answerNext(const QString& path);

private:
    static bool takeAnswer(QString& path);
};

} // namespace Gui
