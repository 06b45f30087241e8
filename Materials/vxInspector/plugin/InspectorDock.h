#pragma once

#include <QLabel>
#include <QPointer>
#include <QWidget>

namespace vxInspector {

/// The widget of the inspector's dock. It loads and makes its content after its first picture, so that the start of the
/// program does not wait for it. Shows a hint until then.
class InspectorDock : public QWidget
{
    Q_OBJECT

public:
    explicit InspectorDock(QWidget* parent = nullptr);
    ~InspectorDock() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void load();
    void makeContent();
    void retranslate();

    QPointer<QLabel> m_hint; ///< null if the content has removed it
    bool m_isPainted = false;
};

} // namespace vxInspector
