#include "vxMaterial/project/MessageBox.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"

#include <QApplication>
#include <QMessageBox>

namespace Mat {

namespace {

void show(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool hasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

void showCritical(const QString& title, const QString& text)
{
    if (hasWindows())
        show(QMessageBox::Critical, title, text);
    else
        Kelta::MessageLog::error(title + QStringLiteral(": ") + text);
}

void showWarning(const QString& title, const QString& text)
{
    if (hasWindows())
        show(QMessageBox::Warning, title, text);
    else
        Kelta::MessageLog::warning(title + QStringLiteral(": ") + text);
}

} // namespace Mat
