#pragma once

#include "Gui/GuiExport.h"

#include <QFileDialog>
#include <QString>

namespace Gui {

/// Asks the user for files. The folder last used is remembered from one time to the next.
class GUI_EXPORT FileDialog
{
public:
    /// The path that the user chose; empty when the user chose none. An empty `folder` is the one last used.
    static QString getOpenFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    /// Likewise for a file to write. Asks before one that is there is replaced; a name without an ending gets that of
    /// the filter.
    static QString getSaveFileName(QWidget* parent, const QString& caption, const QString& folder,
                                   const QString& filter, QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});

    /// Answers the next request without asking, as a program run by a script does.
    static void answer_next(const QString& path);

private:
    static bool takeAnswer(QString& path);
};

} // namespace Gui
