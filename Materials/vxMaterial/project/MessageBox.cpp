#include "vxMaterial/project/MessageBox.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"

#include <QApplication>
#include <QMessageBox>

namespace Mat {

namespace {

void show(QMessageBox::Icon icon, const QString& title, const QString& text, const QString& details = {})
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(details);
    box.exec();
}

bool hasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

void showCritical(const QString& title, const QString& text, const QString& details)
{
    if (hasWindows())
        show(QMessageBox::Critical, title, text, details);
    else
        Kelta::MessageLog::error(QStringLiteral("%1: %2 %3").arg(title, text, details).trimmed());
}

void showWarning(const QString& title, const QString& text)
{
    if (hasWindows())
        show(QMessageBox::Warning, title, text);
    else
        Kelta::MessageLog::warning(title + QStringLiteral(": ") + text);
}

} // namespace Mat
