#pragma once

#include <QWidget>

class QLabel;

namespace vxInspector {

class Inspector;
class SubjectWatch;

/// The content of the inspector's dock: a hint until there is something to show, then the tabs.
class InspectorContent : public QWidget
{
    Q_OBJECT

public:
    /// Takes `hint` over.
    explicit InspectorContent(QLabel& hint);
    ~InspectorContent() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refreshIfNeeded();
    void refresh();

    SubjectWatch* m_watch;
    QLabel* m_hint;                   ///< null if there are tabs
    Inspector* m_inspector = nullptr; ///< null until there is something to show
};

} // namespace vxInspector

/// The entry of the library of the tabs; see MakeContent in TabsLibrary.h.
extern "C" __attribute__((visibility("default"))) QWidget* vxMakeInspectorContent(QLabel* hint);
