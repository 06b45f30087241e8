#include "decks/DeckExport.h"

#include "FileReplacing.h"
#include "MaterialExport.h"
#include "MaterialProjects.h"

#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "decks/DeckDialog.h"
#include "decks/DeckMaking.h"
#include "kelta/BusyCursor.h"
#include "kelta/UnappliedEdits.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>

#include <exception>

namespace desktop {

namespace {

using vxInspector::DeckLine;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::DeckExport", text);
}

QString title()
{
    return tr("Export for solver");
}

void refuse(const QString& reason, QWidget& parent)
{
    QMessageBox box(QMessageBox::Warning, title(), reason, QMessageBox::Ok, &parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// Asks about changes that are not applied. Returns whether the project may be exported.
bool mayExport(const Mat::DocumentMaterial& project)
{
    const std::uint32_t projectId = project.getProjectId();
    const UnappliedQuestion question{title(), tr("The deck contains only applied changes."),
                                     tr("&Export without them")};
    // The project may have been closed while the user answered.
    return askToApply(*Gui::MainWindow::get_main_window_inst(), project, question) &&
           Obj::Application::instance().get_project(projectId) == &project;
}

/// Returns a line of the report for the message log.
QString logLine(const DeckLine& line)
{
    QStringList parts{nameOf(line.kind)};
    for (const QString& part : {line.quantities, line.reason})
        if (!part.isEmpty())
            parts << part;
    return line.materials + QStringLiteral(": ") + parts.join(QStringLiteral(": "));
}

/// Reports what the deck does not carry as it is in the project. Conversions are reported by the dialog only.
void reportLosses(const MadeDeck& made, const DeckSource& source)
{
    for (const DeckLine& line : made.lines) {
        if (line.kind == DeckLine::Kind::Refused)
            Kelta::MessageLog::warning(logLine(line));
        else if (line.kind < DeckLine::Kind::Converted)
            Kelta::MessageLog::information(logLine(line));
    }
    if (!source.settings.isEmpty())
        Kelta::MessageLog::information(source.settings);
}

void report(const MadeDeck& made, const DeckSource& source, const QString& path)
{
    reportLosses(made, source);
    const vxDecks::FormatInfo& format = vxDecks::infoOf(made.deck.report.format);
    QString text = tr("Materials written to \"%1\" for %2 in %3: %4.")
                       .arg(QDir::toNativeSeparators(path), QString::fromLatin1(format.title),
                            QString::fromStdString(made.deck.report.units), QString::number(source.materials.size()));
    if (source.suppressed != 0)
        text += QLatin1Char(' ') + tr("Suppressed materials among them: %1.").arg(source.suppressed);
    Gui::MainWindow::announce(text + QLatin1Char(' ') + made.summary);
}

} // namespace

DeckChoice lastChoice(const Obj::Project& project)
{
    DeckChoice choice;
    if (const vxDecks::FormatInfo* const format = vxDecks::findFormat(project.getSetting(deckFormatSetting)))
        choice.format = format->format;
    choice.form = project.getSetting(deckFormSetting);
    choice.units = QString::fromStdString(project.getSetting(deckUnitsSetting));
    return choice;
}

void keepChoice(const DeckChoice& choice, Obj::Project& project)
{
    project.setSetting(deckFormatSetting, vxDecks::infoOf(choice.format).name);
    project.setSetting(deckFormSetting, choice.form);
    project.setSetting(deckUnitsSetting, choice.units.toStdString());
}

QString askForDeckFile(QString proposedName, vxDecks::Format format, QWidget& parent)
{
    const vxDecks::FormatInfo& info = vxDecks::infoOf(format);
    const QString extension = QString::fromLatin1(info.extension);
    const QString filter =
        QStringLiteral("%1 (*.%2);;%3").arg(QString::fromLatin1(info.title), extension, tr("All files (*)"));
    proposedName.replace(QLatin1Char('/'), QLatin1Char('_')); // a project may have such a name, a file may not
    return Gui::FileDialog::getSaveFileName(&parent, title(), proposedName + QLatin1Char('.') + extension, filter);
}

bool saveDeck(const MadeDeck& made, const DeckSource& source, const QString& path, QWidget& parent)
{
    if (const QString obstacle = findWriteObstacle(path); !obstacle.isEmpty()) {
        refuse(obstacle, parent);
        return false;
    }
    if (!mayReplace(path, {title(), tr("Replace it by a deck?")}, parent))
        return false;
    try {
        projectfile::writeFile(path, made.deck.text);
    } catch (const std::exception& error) {
        refuse(QString::fromUtf8(error.what()), parent);
        return false;
    }
    report(made, source, path);
    return true;
}

void exportForSolver()
{
    Mat::DocumentMaterial& project = *currentMaterialProject();
    if (mayExport(project))
        openDeckDialog(project, *Gui::MainWindow::get_main_window_inst());
}

std::optional<QString> exportForSolver(Mat::DocumentMaterial& project, const DeckRequest& request, const QString& path)
{
    if (!mayExport(project))
        return tr("The materials were not exported.");
    const BusyCursor busy;
    const auto source = copyForDeck(Mat::materialsOf(project));
    const MadeDeck made = makeDeck(*source, request);
    return saveDeck(made, *source, path, *Gui::MainWindow::get_main_window_inst())
               ? std::nullopt
               : std::optional(tr("The materials were not exported."));
}

} // namespace desktop
