#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/MessageLog.h"

#include <QListWidget>
#include <QTimer>

namespace Gui {

/// The message log, the newest message last. Messages can be selected and copied.
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
    void keyPressEvent(QKeyEvent* event) override;

private:
    void add(const Kelta::LogMessage& message);

    QTimer m_scrolling;
};

} // namespace Gui
