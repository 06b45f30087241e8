#include "GuideView.h"

#include "Help.h"

#include "Gui/CommandController.h"

#include <QEvent>
#include <QFileInfo>

namespace desktop {

namespace {

QUrl keysUrl()
{
    return QUrl(QStringLiteral("kelta:keys"));
}

/// Returns the text of a menu entry without the marks of its mnemonic and of its dialog.
QString plainText(QString menuText)
{
    return menuText.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

} // namespace

GuideView::GuideView(const Gui::CommandController& commands, QWidget* parent)
    : QTextBrowser(parent), m_commands(commands)
{
    setObjectName(QStringLiteral("guide"));
    setAccessibleName(tr("Guide"));
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
}

GuideView::~GuideView() = default;

void GuideView::showGuide()
{
    setSource(QUrl::fromLocalFile(sharedFile(QStringLiteral("doc/vxMaterial/kelta.md"))));
}

void GuideView::showKeys()
{
    setSource(keysUrl(), QTextDocument::HtmlResource);
    // The keys may have changed since they were last shown.
    reload();
}

QVariant GuideView::loadResource(int type, const QUrl& name)
{
    if (name == keysUrl())
        return keysAsHtml();
    if (name.isLocalFile() && !QFileInfo(name.toLocalFile()).isReadable())
        return tr("The file %1 of the guide cannot be read. Install the program again.").arg(name.toLocalFile());
    return QTextBrowser::loadResource(type, name);
}

QSize GuideView::sizeHint() const
{
    constexpr int charactersPerLine = 60;
    return {fontMetrics().averageCharWidth() * charactersPerLine, QTextBrowser::sizeHint().height()};
}

void GuideView::showEvent(QShowEvent* event)
{
    QTextBrowser::showEvent(event);
    if (source().isEmpty())
        showGuide();
}

void GuideView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setAccessibleName(tr("Guide"));
    if (source() == keysUrl())
        reload();
}

QString GuideView::keysAsHtml() const
{
    QString rows;
    for (const Gui::Command* const command : m_commands.getCommands())
        if (const QString key = command->get_shortcut().toString(QKeySequence::NativeText); !key.isEmpty())
            rows += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                        .arg(key.toHtmlEscaped(), plainText(command->get_menu_info()).toHtmlEscaped());
    return QStringLiteral("<h2>%1</h2><table cellspacing=\"6\">%2</table>").arg(tr("Keys").toHtmlEscaped(), rows);
}

} // namespace desktop
