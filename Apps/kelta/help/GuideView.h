#pragma once

#include <QTextBrowser>

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

/// The guide to the program, and a list of the keys of all commands in the language of the user. The guide is read from
/// its file when it is first shown.
class GuideView final : public QTextBrowser
{
    Q_OBJECT

public:
    /// `commands` provides the keys and must outlive the view.
    explicit GuideView(const Gui::CommandController& commands, QWidget* parent = nullptr);
    ~GuideView() override;

    void showGuide();
    void showKeys();

    /// Returns the text of a page of the guide, or the reason why it cannot be read.
    QVariant loadResource(int type, const QUrl& name) override;
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QString keysAsHtml() const;

    const Gui::CommandController& m_commands;
};

} // namespace desktop
