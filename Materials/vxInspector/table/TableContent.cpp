#include "table/TableContent.h"

#include <numeric>

namespace vxInspector {

namespace {

/// Returns a text as one cell of a text with tabs: in quotes if it has tabs or ends of lines, as spreadsheets write and read
/// it.
QString asOneCell(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar end : {QChar('\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, QLatin1Char('\n'));
    const bool isPlain =
        !text.contains(QLatin1Char('\t')) && !text.contains(QLatin1Char('\n')) && !text.startsWith(QLatin1Char('"'));
    if (isPlain)
        return text;
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

const Cell& cellAt(const Row& row, int column)
{
    return row.cells[static_cast<std::size_t>(column)];
}

/// Returns a row of an HTML table with cells of this kind, "td" or "th".
QString htmlRow(const QStringList& texts, const char* kind)
{
    QString html = QStringLiteral("<tr>");
    for (const QString& text : texts)
        html += QStringLiteral("<%1>%2</%1>")
                    .arg(QLatin1String(kind), text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
    return html + QStringLiteral("</tr>\n");
}

QStringList headersOf(const TableContent& table, const TablePart& part)
{
    QStringList texts;
    for (const int column : part.columns)
        texts << table.headers[column];
    return texts;
}

QStringList textsOf(const Row& row, const TablePart& part)
{
    QStringList texts;
    for (const int column : part.columns)
        texts << cellAt(row, column).copied();
    return texts;
}

} // namespace

QString shortened(const QString& text, int most)
{
    return text.size() <= most ? text : text.left(most) + QChar(0x2026);
}

Cell textCell(const QString& text)
{
    const QString shown = shortened(text);
    if (shown == text)
        return {text, {}, {}};
    return {shown, shortened(text, mostInToolTip), text};
}

TablePart wholeOf(const TableContent& table)
{
    TablePart part{std::vector<int>(table.rows.size()),
                   std::vector<int>(static_cast<std::size_t>(table.headers.size()))};
    std::iota(part.rows.begin(), part.rows.end(), 0);
    std::iota(part.columns.begin(), part.columns.end(), 0);
    return part;
}

QString toTabText(const TableContent& table, const TablePart& part)
{
    QStringList lines;
    const auto add = [&lines](QStringList texts) {
        for (QString& text : texts)
            text = asOneCell(text);
        lines << texts.join(QLatin1Char('\t'));
    };
    add(headersOf(table, part));
    for (const int row : part.rows)
        add(textsOf(table.rows[static_cast<std::size_t>(row)], part));
    return lines.join(QLatin1Char('\n'));
}

QString toHtml(const TableContent& table, const TablePart& part)
{
    QString html = QStringLiteral("<table border=\"1\">\n") + htmlRow(headersOf(table, part), "th");
    for (const int row : part.rows)
        html += htmlRow(textsOf(table.rows[static_cast<std::size_t>(row)], part), "td");
    return html + QStringLiteral("</table>\n");
}

} // namespace vxInspector
