#include "Gui/WindowTitle.h"

#include <QTextDocument>

namespace Gui {

namespace {

QString mark()
{
    return QStringLiteral("[*]");
}

} // namespace

QString markedTitle(const QString& text)
{
    return escapedForTitle(text) + mark();
}

QString escapedForTitle(QString text)
{
    return text.replace(mark(), mark() + mark());
}

QString shownTitle(const QString& title, bool isModified)
{
    QString shown;
    int from = 0;
    for (int run = title.indexOf(mark()); run >= 0; run = title.indexOf(mark(), from)) {
        int count = 0;
        int end = run;
        for (; title.midRef(end, mark().size()) == mark(); end += mark().size())
            ++count;
        shown += title.midRef(from, run - from) + mark().repeated(count / 2);
        if (count % 2 != 0 && isModified)
            shown += QLatin1Char('*');
        from = end;
    }
    return shown + title.midRef(from);
}

QString escapedForMnemonics(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString withoutMnemonics(const QString& text)
{
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        shown += text[i];
    }
    return shown;
}

QString escapedForToolTip(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QString escaped = text.toHtmlEscaped();
    return QStringLiteral("<qt>%1</qt>").arg(escaped.replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

} // namespace Gui
