#include "GuideView.h"

#include "Help.h"

#include "Gui/CommandController.h"
#include "Gui/Translator.h"
#include "Gui/WindowTitle.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>

#include <algorithm>
#include <set>

namespace desktop {

namespace {

constexpr const char* guideName = "kelta.md";

/// Returns the guide in the language of the program; in English if it is not translated into that language.
QUrl guideUrl()
{
    const QDir folder(sharedFile(QStringLiteral("doc/vxMaterial")));
    for (const QString& language : Gui::Translator::fileLanguagesOf(Gui::Translator::instance()->language()))
        if (const QString file = folder.filePath(language + QLatin1Char('/') + QLatin1String(guideName));
            QFileInfo::exists(file))
            return QUrl::fromLocalFile(file);
    return QUrl::fromLocalFile(folder.filePath(QLatin1String(guideName)));
}

QUrl keysUrl()
{
    return QUrl(QStringLiteral("kelta:keys"));
}

/// Returns the text of a menu entry without the marks of its mnemonic and of its dialog.
QString plainText(const QString& menuText)
{
    return Gui::withoutMnemonics(menuText).remove(QStringLiteral("..."));
}

/// A key that works in a part of the window only.
struct PartKey
{
    const char* part;
    const char* key;
    const char* effect;
};

constexpr PartKey partKeys[] = {
    {QT_TRANSLATE_NOOP("desktop::GuideView", "everywhere"), QT_TRANSLATE_NOOP("desktop::GuideView", "Tab, Shift+Tab"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "moves between the fields of a part")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "explorer"), QT_TRANSLATE_NOOP("desktop::GuideView", "Return"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "opens the material")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "page headers of an editor"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "Space"), QT_TRANSLATE_NOOP("desktop::GuideView", "opens the page")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "lists of an editor"), QT_TRANSLATE_NOOP("desktop::GuideView", "Space"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "selects a library material; checks or unchecks a quantity")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "table of an editor"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "F2 or Return, then Return or Escape"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "edits the value of the row; keeps or discards the text")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "editor"), QT_TRANSLATE_NOOP("desktop::GuideView", "Ctrl+Z, Ctrl+Y"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "undoes and redoes changes that have not been applied")},
    {QT_TRANSLATE_NOOP("desktop::GuideView", "guide"), QT_TRANSLATE_NOOP("desktop::GuideView", "Escape"),
     QT_TRANSLATE_NOOP("desktop::GuideView", "closes the guide")},
};

/// Returns a row of a table.
QString row(const QStringList& texts)
{
    QString cells;
    for (const QString& text : texts)
        cells += QStringLiteral("<td>%1</td>").arg(text.toHtmlEscaped());
    return QStringLiteral("<tr>%1</tr>").arg(cells);
}

QString table(const QString& title, const QString& rows)
{
    return QStringLiteral("<h2>%1</h2><table cellspacing=\"6\">%2</table>").arg(title.toHtmlEscaped(), rows);
}

/// Returns all keys of a command, separated by commas; an empty text if it has none.
QString keysOf(const Gui::Command& command)
{
    QList<QKeySequence> keys{command.get_shortcut()};
    if (command.action() != nullptr)
        keys = command.action()->shortcuts();
    return QKeySequence::listToString(keys, QKeySequence::NativeText)
        .replace(QStringLiteral("; "), QStringLiteral(", "));
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
    setSource(guideUrl());
}

void GuideView::showKeys()
{
    setSource(keysUrl(), QTextDocument::HtmlResource);
    // The keys may have changed since they were last shown.
    reload();
}

bool GuideView::isGuideVisible() const
{
    return !visibleRegion().isEmpty() && source() != keysUrl();
}

QVariant GuideView::loadResource(int type, const QUrl& name)
{
    if (name == keysUrl())
        return keysAsHtml();
    if (name.isLocalFile() && !QFileInfo(name.toLocalFile()).isReadable())
        return tr("The file %1 of the guide cannot be read. Install the program again.").arg(name.toLocalFile());
    if (type == QTextDocument::ImageResource && name.isLocalFile()) {
        m_pictures.insert(name);
        return fittingPicture(name);
    }
    if (type == QTextDocument::MarkdownResource)
        m_pictures.clear();
    return QTextBrowser::loadResource(type, name);
}

/// Returns a picture that is not wider than the text.
QImage GuideView::fittingPicture(const QUrl& name) const
{
    const QImage picture(name.toLocalFile());
    const int width = viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
    return picture.width() > width ? picture.scaledToWidth(std::max(width, 1), Qt::SmoothTransformation) : picture;
}

QSize GuideView::sizeHint() const
{
    constexpr int charactersPerLine = 60;
    const int wanted = fontMetrics().averageCharWidth() * charactersPerLine;
    return {std::min(wanted, window()->width() * 3 / 10), window()->height() * 2 / 3};
}

void GuideView::keyPressEvent(QKeyEvent* event)
{
    auto* const dock = qobject_cast<QDockWidget*>(parentWidget());
    if (event->key() == Qt::Key_Escape && dock != nullptr)
        dock->close();
    else
        QTextBrowser::keyPressEvent(event);
}

void GuideView::showEvent(QShowEvent* event)
{
    QTextBrowser::showEvent(event);
    if (source().isEmpty())
        showGuide();
}

void GuideView::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (m_pictures.isEmpty() || event->size().width() == event->oldSize().width())
        return;
    for (const QUrl& name : qAsConst(m_pictures))
        document()->addResource(QTextDocument::ImageResource, name, fittingPicture(name));
    document()->markContentsDirty(0, document()->characterCount());
}

void GuideView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setAccessibleName(tr("Guide"));
    if (source() == keysUrl())
        reload();
    else if (source().fileName() == QLatin1String(guideName))
        showGuide();
}

QString GuideView::keysAsHtml() const
{
    QString commandRows;
    std::set<QString> listed;
    for (const Gui::Command* const command : m_commands.getCommands()) {
        // If two commands have one key, the key runs the command that was registered first.
        const QString keys = keysOf(*command);
        if (!keys.isEmpty() && listed.insert(keys).second)
            commandRows += row({keys, plainText(command->get_menu_info())});
    }
    QString partRows;
    for (const PartKey& key : partKeys)
        partRows += row({tr(key.part), tr(key.key), tr(key.effect)});
    return table(tr("Keys"), commandRows) + table(tr("Keys in the parts of the window"), partRows);
}

} // namespace desktop
