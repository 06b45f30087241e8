#pragma once

#include <QMdiArea>

namespace Gui {

class MDIWindow;

/// The middle of the main window: the document windows, as tabs or as windows side by side.
class DocumentArea : public QMdiArea
{
    Q_OBJECT

public:
    explicit DocumentArea(QWidget* parent = nullptr);
    ~DocumentArea() override;

    /// Shows a document window and takes ownership of it: it is destroyed when the user closes it.
    void add(MDIWindow* window);
    /// Destroys a document window without asking. Does nothing if `window` is not a document window.
    void remove(const MDIWindow* window);
    /// Destroys all document windows without asking.
    void removeAll();
    /// Brings a document window to the front and gives it the keyboard focus.
    void activate(MDIWindow* window);

    /// Returns the document window in front; null if there is none.
    MDIWindow* activeWindow() const;
    /// Returns all document windows, in the order in which they were added.
    QList<MDIWindow*> windows() const;
    /// Closes the document window in front, as if the user closed it.
    void closeActive();

    void tile();
    void cascade();
    void showAsTabs();

    /// Shows the titles of the documents as they are in the tabs. The base class interprets "&" and "[*]" in labels.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Sent after a document window has come to the front. Null if the last window was closed.
    void windowActivated(Gui::MDIWindow* window);
    /// Sent after a document window was destroyed.
    void windowDestroyed();
    /// Sent after a document window that had the keyboard focus was closed.
    void focusedWindowClosed();

private:
    QMdiSubWindow* frontFrame() const;
    QMdiSubWindow* frameOf(const MDIWindow* window) const;
    void watchFocus(const QMdiSubWindow& frame);
    void showTabTexts();
};

} // namespace Gui
