#pragma once

#include <QString>
#include <QWidget>

class QMenu;
class QPushButton;

namespace vxInspector {

class ContentView;
class FitTests;
class TestForm;

/// The table of the tests, the buttons that add and remove them, and the fields of the current test. A test that a material
/// keeps can be removed from the material too, as a step of the history.
class TestPanel : public QWidget
{
    Q_OBJECT

public:
    /// `tests` must outlive the widget.
    explicit TestPanel(FitTests& tests, QWidget* parent = nullptr);
    ~TestPanel() override;

    /// Shows what can be removed after another material has been selected, or its measurements have changed.
    void showRemovals();
    void retranslate();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void connectControls();
    void load();
    void paste();
    void remove();
    void fillRemoveMenu();
    void removeFromMaterial();
    void removeAllFromMaterial();
    void showTests();
    void showCurrent();
    int currentRow() const;

    FitTests& m_tests;
    QPushButton* m_load;
    QPushButton* m_paste;
    QPushButton* m_remove;
    QMenu* m_removeMenu;
    ContentView* m_view;
    TestForm* m_form;
};

} // namespace vxInspector
