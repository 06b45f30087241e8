#pragma once

#include <QColor>
#include <QPalette>
#include <QPixmap>
#include <QString>
#include <QWidget>
#include <QtTest/QtTestGui>

/// For programs that make pictures for a review by eye.
namespace vxtest {

inline QPalette darkColours()
{
    QPalette colours(QColor(53, 53, 53));
    colours.setColor(QPalette::Base, QColor(35, 35, 35));
    colours.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    colours.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return colours;
}

/// Takes pictures of a window.
struct Shooting
{
    QString folder;
    QString suffix; ///< of the names of the files
    QWidget& window;

    void take(const char* name) const
    {
        QTest::qWait(300); // until the window is laid out, which no signal reports
        window.grab().save(QStringLiteral("%1/%2-%3.png").arg(folder, QLatin1String(name), suffix));
    }
};

} // namespace vxtest
