#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace vxInspector {

class ContentView;
struct TableContent;

/// A tab of the inspector: a sentence and a table. A table without columns is hidden.
class TabPage : public QWidget
{
    Q_OBJECT

public:
    explicit TabPage(const char* name, QWidget* parent = nullptr);
    ~TabPage() override;

    ContentView& view() const { return *m_view; }
    void setContent(TableContent content);
    virtual void retranslate();

private:
    QLabel* m_sentence;
    ContentView* m_view;
};

} // namespace vxInspector
