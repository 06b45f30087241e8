#include "Gui/WindowTitle.h"

#include "GuiTesting.h"

#include <QMainWindow>

namespace {

constexpr const char* labels[] = {"Frame", "a[*]b", "[*]", "[*][*]", "x[*]", "[*", ""};

TEST(WindowTitle, ShowsEveryLabelAsItIs)
{
    for (const char* const label : labels) {
        EXPECT_EQ(Gui::shownTitle(Gui::markedTitle(label)), label);
        EXPECT_EQ(Gui::shownTitle(Gui::markedTitle(label), true), QString(label) + '*');
        EXPECT_EQ(Gui::shownTitle(Gui::escapedForTitle(label)), label);
    }
}

/// A window that says which title the window system gets.
class Window : public QMainWindow
{
public:
    QString systemTitle() const { return windowHandle()->title(); }
};

TEST(WindowTitle, IsWhatTheWindowSystemShows)
{
    Window window;
    window.show();
    for (const char* const label : labels) {
        if (*label == '\0')
            continue;
        for (const bool isModified : {false, true}) {
            window.setWindowTitle(Gui::markedTitle(label));
            window.setWindowModified(isModified);
            EXPECT_TRUE(window.systemTitle().startsWith(Gui::shownTitle(window.windowTitle(), isModified)))
                << label << " is shown as " << window.systemTitle().toStdString();
        }
    }
}

TEST(WindowTitle, IsShownWithoutTheMarksOfMnemonics)
{
    for (const auto& [text, shown] : {std::pair("&Edit", "Edit"), std::pair("Thermal && &Fluid", "Thermal & Fluid"),
                                      std::pair("a&&&&b", "a&&b"), std::pair("end&", "end"), std::pair("", "")})
        EXPECT_EQ(Gui::withoutMnemonics(text), shown) << text;
    const QString anything = QStringLiteral("&a && &&& b&");
    EXPECT_EQ(Gui::withoutMnemonics(Gui::escapedForMnemonics(anything)), anything);
}

TEST(WindowTitle, LeavesToolTipsWithoutMarkupAsTheyAre)
{
    EXPECT_EQ(Gui::escapedForToolTip("a & b\nc"), "a & b\nc");
    EXPECT_EQ(Gui::escapedForToolTip("<b>a</b>\nb"), "<qt>&lt;b&gt;a&lt;/b&gt;<br>b</qt>");
}

} // namespace
