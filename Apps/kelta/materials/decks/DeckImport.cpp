#include "decks/DeckImport.h"

#include "ImportUnits.h"

#include "Gui/MainWindow.h"
#include "decks/ImportDeckDialog.h"
#include "vxInspector/decks/DeckLines.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxUnits/SystemFit.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fstream>
#include <stdexcept>
#include <utility>

namespace desktop {

namespace {

using vxDecks::Format;
using vxDecks::ReadDeck;
using vxInspector::DeckLine;
using vxUnits::UnitSystem;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::DeckImport", text);
}

std::string translate(const char* context, const char* english)
{
    return QCoreApplication::translate(context, english).toStdString();
}

std::runtime_error errorAbout(const QString& path, const QString& reason)
{
    return std::runtime_error((QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason).toStdString());
}

QByteArray beginningOf(const QString& path)
{
    QFile file(path);
    // Opening a pipe would wait for a writer.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(static_cast<qint64>(vxDecks::recognisedLength));
}

/// A file whose reading fails when it is stopped.
class StoppableFile : public std::filebuf
{
public:
    explicit StoppableFile(const std::atomic<bool>* isStopped) : m_isStopped(isStopped) {}

protected:
    int_type underflow() override
    {
        check();
        return std::filebuf::underflow();
    }
    std::streamsize xsgetn(char* text, std::streamsize count) override
    {
        check();
        return std::filebuf::xsgetn(text, count);
    }

private:
    void check() const
    {
        if (m_isStopped != nullptr && *m_isStopped)
            throw std::ios_base::failure("stopped");
    }

    const std::atomic<bool>* m_isStopped; ///< null if the reading cannot be stopped
};

/// Returns a sentence for the message log.
std::string sentence(const DeckLine& line)
{
    QStringList parts{line.materials, nameOf(line.kind)};
    for (const QString& part : {line.quantities, line.reason})
        if (!part.isEmpty())
            parts << part;
    return parts.join(QStringLiteral(": ")).toStdString();
}

ImportedDeck makeImported(ReadDeck deck)
{
    ImportedDeck imported;
    imported.findings = findingsOf(deck);
    std::uint32_t number = 0;
    for (vxDecks::ReadMaterial& one : deck.materials)
        imported.materials.materials.push_back({++number, one.name, std::move(one.material)});
    std::size_t omitted = 0;
    for (const DeckLine& line : vxInspector::deckLines(deck.report)) {
        const bool isLoss = line.kind == DeckLine::Kind::Refused || line.kind == DeckLine::Kind::Lost ||
                            line.kind == DeckLine::Kind::Approximated;
        if (isLoss && imported.materials.doubts.size() < projectfile::mostDoubts)
            imported.materials.doubts.push_back(sentence(line));
        else if (isLoss)
            ++omitted;
    }
    if (omitted > 0)
        imported.materials.doubts.push_back(tr("Further losses are not listed: %1.").arg(omitted).toStdString());
    imported.reports << vxInspector::deckRemarks(deck.report) << vxInspector::deckSummary(deck.report);
    return imported;
}

/// Reads a deck for a list of commands. Doubts that its numbers are in the given system if they look like another one.
ImportedDeck importUnasked(const DeckFile& file, const std::optional<UnitSystem>& units)
{
    ReadDeck deck = readDeckFile(file, units);
    requireMaterials(file, deck);
    std::string fitting;
    const auto used = UnitSystem::parse(deck.report.units);
    if (!vxDecks::hasOwnUnits(file.format) && used)
        fitting = fittingSystem(readDeckFile(file, UnitSystem::si()), *used);
    const QString name = QString::fromStdString(deck.report.units);
    ImportedDeck imported = makeImported(std::move(deck));
    if (!fitting.empty())
        imported.materials.doubts.push_back(
            tr("The numbers look like %1, not %2.").arg(QString::fromStdString(fitting), name).toStdString());
    return imported;
}

} // namespace

std::optional<DeckFile> recogniseDeck(const QString& path)
{
    const QByteArray beginning = beginningOf(path);
    const std::string_view text(beginning.constData(), static_cast<std::size_t>(beginning.size()));
    const auto format = vxDecks::recognisedFormat(text);
    if (!format)
        return std::nullopt;
    return DeckFile{path, *format, vxDecks::declaredUnits(*format, text)};
}

ReadDeck readDeckFile(const DeckFile& file, const std::optional<UnitSystem>& units, const std::atomic<bool>* isStopped)
{
    StoppableFile content(isStopped);
    if (content.open(QFile::encodeName(file.path).constData(), std::ios::in | std::ios::binary) == nullptr)
        throw errorAbout(file.path, tr("The file cannot be opened."));
    std::istream stream(&content);
    try {
        return vxDecks::readDeck(file.format, stream, {units});
    } catch (const vxDecks::DeckError& error) {
        throw errorAbout(file.path, QString::fromStdString(error.text(translate)));
    }
}

void requireMaterials(const DeckFile& file, const ReadDeck& deck)
{
    if (deck.materials.empty())
        throw errorAbout(
            file.path,
            tr("This deck of %1 has no materials.").arg(QString::fromLatin1(vxDecks::infoOf(file.format).title)));
}

std::vector<std::vector<CheckedValue>> findingsOf(const ReadDeck& deck)
{
    std::vector<std::vector<CheckedValue>> all;
    for (std::size_t i = 0; i < deck.materials.size(); ++i) {
        const vxDecks::MaterialReport& report = deck.report.materials[i];
        std::vector<CheckedValue>& findings = all.emplace_back();
        for (const vxDecks::Finding& one : report.findings)
            findings.push_back({one.id, QString::fromStdString(textOf(one, vxInspector::translateWithNames))});
        for (const vxMat::MaterialFinding& one : vxDecks::findingsBesides(report, *deck.materials[i].material))
            findings.push_back({one.slot, MatGui::findingText(one)});
    }
    return all;
}

std::string fittingSystem(const ReadDeck& asIs, const UnitSystem& assumed)
{
    std::vector<const vxMat::MaterialBase*> materials;
    for (const vxDecks::ReadMaterial& one : asIs.materials)
        materials.push_back(one.material.get());
    return vxUnits::betterFittingSystem(materials, assumed);
}

std::optional<ImportedDeck> importDeck(const DeckFile& file)
{
    if (const auto* const unasked = UnaskedImport::current())
        return importUnasked(file, unasked->system());
    ImportDeckDialog dialog(file, Gui::MainWindow::get_main_window_inst());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return makeImported(dialog.takeDeck());
}

QString deckPatterns()
{
    static constexpr std::pair<Format, const char*> patterns[] = {
        {Format::Calculix, "*.inp"},   {Format::Nastran, "*.bdf *.nas *.dat"},
        {Format::Apdl, "*.mac *.cdb"}, {Format::LsDyna, "*.k *.key *.dyn"},
        {Format::Elmer, "*.sif"},      {Format::Matml, "*.xml"},
    };
    QStringList readable;
    for (const auto& [format, pattern] : patterns)
        if (vxDecks::canRead(format))
            readable << QString::fromLatin1(pattern);
    return readable.join(QLatin1Char(' '));
}

} // namespace desktop
