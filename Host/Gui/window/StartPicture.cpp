#include "window/StartPicture.h"

#include "Gui/Translator.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QProxyStyle>
#include <QSaveFile>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace Gui {

namespace {

using Word = std::uint32_t;

// The file is a list of words in the byte order of the machine: a mark, the width and the height in pixels, the key, a
// checksum of all other words, and then runs of equal pixels, line after line, each with its length and its colour. Most
// of a window consists of long runs, so the file is small, and fast to read.
constexpr Word mark = 0x4b535031; // for this layout
constexpr std::size_t keyLength = 5;
constexpr std::size_t widthPlace = 1;
constexpr std::size_t heightPlace = 2;
constexpr std::size_t keyPlace = 3;
constexpr std::size_t sumPlace = keyPlace + keyLength;
constexpr std::size_t runsPlace = sumPlace + 1;

constexpr int longestSide = 16384;
constexpr std::size_t mostWords = 1U << 19U;

using Key = std::array<Word, keyLength>;

/// Returns nothing if neither HOME nor XDG_CACHE_HOME names a folder. Qt would then use the root folder.
std::optional<QString> pathOfFile()
{
    const QString home = qEnvironmentVariable("HOME");
    const bool hasHome = QDir::isAbsolutePath(home) && QFileInfo(home).isDir();
    if (!hasHome && !QDir::isAbsolutePath(qEnvironmentVariable("XDG_CACHE_HOME")))
        return std::nullopt;
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/start-picture");
}

QByteArray contentOfSettings()
{
    QFile file(QSettings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns what decides how a window looks, apart from the settings.
QByteArray lookOf(const QWidget& window)
{
    const QStyle* style = QApplication::style();
    if (const auto* const proxy = qobject_cast<const QProxyStyle*>(style))
        style = proxy->baseStyle();
    QByteArray look;
    QDataStream stream(&look, QIODevice::WriteOnly);
    stream << QCoreApplication::applicationVersion() << Translator::instance()->language() << style->objectName()
           << QGuiApplication::palette() << QApplication::font() << qApp->styleSheet()
           << QGuiApplication::layoutDirection() << window.devicePixelRatioF() << window.logicalDpiX()
           << window.logicalDpiY();
    return look;
}

/// Returns nothing if there are no settings.
std::optional<Key> keyOf(const QWidget& window)
{
    const QByteArray settings = contentOfSettings();
    if (settings.isEmpty())
        return std::nullopt;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(settings);
    hash.addData(lookOf(window));
    Key key{};
    std::memcpy(key.data(), hash.result().constData(), sizeof key);
    return key;
}

QSize pixelsOf(const QWidget& window)
{
    return (QSizeF(window.size()) * window.devicePixelRatioF()).toSize();
}

/// A window that fills the screen gets its size when it is shown: the width of the screen without a frame.
bool fits(QSize picture, const QWidget& window)
{
    constexpr Qt::WindowStates large = Qt::WindowMaximized | Qt::WindowFullScreen;
    if ((window.windowState() & large) == 0)
        return picture == pixelsOf(window);
    constexpr int widestFrame = 16;
    const QScreen* const screen = window.screen();
    const qreal frame =
        screen != nullptr ? screen->availableSize().width() - picture.width() / window.devicePixelRatioF() : -1.0;
    return frame >= 0.0 && frame <= widestFrame;
}

Word checksumOf(const std::vector<Word>& words)
{
    Word sum = 0;
    for (std::size_t place = 0; place < words.size(); ++place)
        if (place != sumPlace)
            sum = sum * 31 + words[place];
    return sum;
}

/// Returns whether the runs fill the lines of the picture.
bool isWhole(const std::vector<Word>& words)
{
    const Word width = words[widthPlace];
    Word lines = 0;
    Word filled = 0; // of a line
    for (std::size_t place = runsPlace; place + 1 < words.size(); place += 2) {
        const Word length = words[place];
        if (length == 0 || length > width - filled)
            return false;
        filled += length;
        if (filled == width) {
            filled = 0;
            ++lines;
        }
    }
    return filled == 0 && lines == words[heightPlace];
}

/// A pipe or a device may never end.
std::vector<Word> readWords(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const qint64 size = file.size();
    constexpr qint64 wordSize = sizeof(Word);
    if (size % wordSize != 0 || size / wordSize > static_cast<qint64>(mostWords))
        return {};
    std::vector<Word> words(static_cast<std::size_t>(size / wordSize));
    return file.read(reinterpret_cast<char*>(words.data()), size) == size ? words : std::vector<Word>();
}

bool isPicture(const std::vector<Word>& words)
{
    return words.size() > runsPlace && words.front() == mark && words[widthPlace] <= longestSide &&
           words[heightPlace] <= longestSide && words[widthPlace] != 0 && words[sumPlace] == checksumOf(words) &&
           isWhole(words);
}

void appendRuns(const QImage& image, std::vector<Word>& words)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto* const end = line + image.width();
        for (const QRgb* first = line; first != end && words.size() < mostWords;) {
            const QRgb colour = *first;
            const QRgb* const last = std::find_if(first, end, [colour](QRgb other) { return other != colour; });
            words.push_back(static_cast<Word>(last - first));
            words.push_back(colour);
            first = last;
        }
    }
}

QImage imageOf(QWidget& window)
{
    QImage image(pixelsOf(window), QImage::Format_RGB32);
    image.setDevicePixelRatio(window.devicePixelRatioF());
    image.fill(window.palette().color(QPalette::Window));
    window.render(&image);
    return image;
}

/// The picture shows the names of files, which concern nobody else.
void write(const QString& path, const std::vector<Word>& words)
{
    QSaveFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly))
        return;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(reinterpret_cast<const char*>(words.data()),
               static_cast<qint64>(words.size()) * static_cast<qint64>(sizeof(Word)));
    file.commit();
}

/// Returns the memory in which a window is painted; null if it is not the memory of an image with pixels as in the file,
/// or begins elsewhere than the window.
QImage* memoryOf(const QPainter& painter)
{
    auto* const image = dynamic_cast<QImage*>(painter.paintEngine()->paintDevice());
    const QTransform& place = painter.deviceTransform();
    const bool hasPixels =
        image != nullptr && image->isDetached() &&
        (image->format() == QImage::Format_RGB32 || image->format() == QImage::Format_ARGB32_Premultiplied);
    return hasPixels && place.dx() == 0.0 && place.dy() == 0.0 ? image : nullptr;
}

} // namespace

StartPicture::StartPicture(std::vector<std::uint32_t> words) : m_words(std::move(words)) {}

std::optional<StartPicture> StartPicture::read(const QWidget& window)
{
    const std::optional<QString> path = pathOfFile();
    if (!path)
        return std::nullopt;
    StartPicture picture(readWords(*path));
    if (!isPicture(picture.m_words) || !fits(picture.size(), window))
        return std::nullopt;
    const std::optional<Key> key = keyOf(window);
    if (!key || !std::equal(key->begin(), key->end(), picture.m_words.begin() + keyPlace))
        return std::nullopt;
    return picture;
}

void StartPicture::keep(QWidget& window)
{
    const std::optional<QString> path = pathOfFile();
    const std::optional<Key> key = keyOf(window);
    if (!path || !key)
        return;
    const QImage image = imageOf(window);
    std::vector<Word> words{mark, static_cast<Word>(image.width()), static_cast<Word>(image.height())};
    words.insert(words.end(), key->begin(), key->end());
    words.push_back(0); // the checksum
    appendRuns(image, words);
    words[sumPlace] = checksumOf(words);
    if (words.size() < mostWords)
        write(*path, words);
    else
        QFile::remove(*path);
}

void StartPicture::paint(QWidget& window) const
{
    QPainter painter(&window);
    // A copy of the whole picture would take longer than the runs.
    if (QImage* const screen = memoryOf(painter); screen != nullptr && screen->size() == size())
        return fill(*screen);
    if (size() != pixelsOf(window))
        painter.fillRect(window.rect(), window.palette().window());
    QImage image(size(), QImage::Format_RGB32);
    fill(image);
    image.setDevicePixelRatio(window.devicePixelRatioF());
    painter.drawImage(0, 0, image);
}

void StartPicture::fill(QImage& image) const
{
    auto run = m_words.begin() + runsPlace;
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); run += 2) {
            std::fill_n(line + x, *run, *(run + 1));
            x += static_cast<int>(*run);
        }
    }
}

QSize StartPicture::size() const
{
    return {static_cast<int>(m_words[widthPlace]), static_cast<int>(m_words[heightPlace])};
}

} // namespace Gui
