#pragma once

#include <QSize>

#include <cstdint>
#include <optional>
#include <vector>

class QImage;
class QWidget;

namespace Gui {

/// The picture of the main window as a start of the program shows it, without a project. It is kept in the user's cache
/// folder from one run to the next, so that the next start can paint it before fonts, the parts of the window and modules
/// are loaded.
class StartPicture
{
public:
    /// Returns the kept picture of a window with this size and state; nothing if there is none, or if the file is damaged.
    /// Nothing too if the picture may not be that of this start: with other settings, which have the layout of the window
    /// and the recent files, in another language, with another look, on a screen of another resolution, or made by
    /// another version of the program.
    static std::optional<StartPicture> read(const QWidget& window);

    /// Keeps the picture of a complete window, which may be hidden, for the settings as they are now. Keeps none if there
    /// are no settings, or if the picture has too many details to be read fast.
    static void keep(QWidget& window);

    /// Paints the window, from its upper left corner. Must be called in a paint event of the window.
    void paint(QWidget& window) const;

private:
    explicit StartPicture(std::vector<std::uint32_t> words);

    QSize size() const;
    void fill(QImage& image) const;

    std::vector<std::uint32_t> m_words; ///< the file: see StartPicture.cpp
};

} // namespace Gui
