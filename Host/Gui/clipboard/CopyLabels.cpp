#include "Gui/CopyLabels.h"

#include "Obj/Project.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace Gui {

namespace {

QString firstCopyOf(const QString& label)
{
    return QCoreApplication::translate("Gui::ObjectClipboard", "%1 copy").arg(label);
}

/// Returns the label of the original if `label` is that of a copy; otherwise the label itself.
QString originalOf(const QString& label)
{
    const QString mark = QStringLiteral("\uFFFC");
    const QString pattern = QRegularExpression::escape(firstCopyOf(mark))
                                .replace(QRegularExpression::escape(mark), QStringLiteral("(.+?)"));
    const QRegularExpression copy(QStringLiteral("^") + pattern + QStringLiteral("( \\d+)?$"));
    const QRegularExpressionMatch match = copy.match(label);
    return match.hasMatch() ? match.captured(1) : label;
}

} // namespace

CopyLabels::CopyLabels(const Obj::Project& project)
{
    for (const Obj::ProjectObject* const object : project.getObjects())
        m_taken.insert(QString::fromStdString(object->label.getValue()));
}

QString CopyLabels::make(const QString& original)
{
    QString label = original;
    const QString stem = m_taken.contains(label) ? originalOf(label) : label;
    // A further copy begins at the last number, since a project may have thousands of copies.
    for (int number = m_lastNumbers.value(stem); m_taken.contains(label); m_lastNumbers[stem] = number) {
        ++number;
        label = number == 1 ? firstCopyOf(stem) : firstCopyOf(stem) + QStringLiteral(" %1").arg(number);
    }
    m_taken.insert(label);
    return label;
}

} // namespace Gui
