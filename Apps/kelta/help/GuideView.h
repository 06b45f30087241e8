#pragma once

#include <QImage>
#include <QSet>
#include <QTextBrowser>
#include <QUrl>

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

/// The guide to the program, and a list of all keys, in the language of the user. The guide is in English if it is not
/// translated into that language. It is read from its file when it is first shown, and when the language changes.
/// Pictures that are wider than the view are made smaller. The Escape key closes the dock of the view.
class GuideView final : public QTextBrowser
{
    Q_OBJECT

public:
    /// `commands` provides the keys and must outlive the view.
    explicit GuideView(const Gui::CommandController& commands, QWidget* parent = nullptr);
    ~GuideView() override;

    void showGuide();
    void showKeys();
    /// Returns whether the user sees the guide, or a page to which it leads.
    bool isGuideVisible() const;

    /// Returns the text of a page of the guide, or the reason why it cannot be read; a picture that fits into the view.
    QVariant loadResource(int type, const QUrl& name) override;
    /// Returns a size for long lines, which leaves most of the width of the main window to documents, and for many lines
    /// beside other docks.
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QString keysAsHtml() const;
    QImage fittingPicture(const QUrl& name) const;

    const Gui::CommandController& m_commands;
    QSet<QUrl> m_pictures; ///< of the page
};

} // namespace desktop
