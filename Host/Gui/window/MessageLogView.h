#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/MessageLog.h"

#include <QListWidget>
#include <QTimer>

namespace Gui {

/// The message log, each message with its time, the newest message last. Messages can be selected and copied, by the
/// keyboard and from the context menu.
class GUI_EXPORT MessageLogView : public QListWidget
{
    Q_OBJECT

public:
    explicit MessageLogView(QWidget* parent = nullptr);
    ~MessageLogView() override;

    /// Empties the log and the view.
    void clearMessages();

protected:
    void changeEvent(QEvent* event) override;
    /// If the focus comes by the Tab key and nothing is selected, selects the first message that is visible.
    void focusInEvent(QFocusEvent* event) override;

private:
    void createActions();
    void retranslate();
    void copy() const;
    void add(const Kelta::LogMessage& message);

    QAction* m_copy;
    QAction* m_selectAll;
    QAction* m_clear;
    QTimer m_scrolling;
};

} // namespace Gui
