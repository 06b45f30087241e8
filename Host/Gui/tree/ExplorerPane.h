#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

class QLabel;

namespace Gui {

class Contributions;
class FilterField;
class ProjectExplorer;
class TreeFilter;
struct FilterFault;

/// The content of the dock of the project explorer: the tree, and above it the field for its filter with a line that says
/// how many objects match, which objects the filter has just hidden, what the filter remarks on the text, or why the text cannot
/// be read. The tree keeps its last filter while the text cannot be read. The text is cleared when the last project is closed.
class ExplorerPane : public QWidget
{
    Q_OBJECT

public:
    /// Becomes the parent of `explorer`. Uses the filter of `contributions`, which must outlive the pane, or a filter by
    /// labels if there is none.
    ExplorerPane(ProjectExplorer& explorer, const Contributions& contributions);
    ~ExplorerPane() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void connectParts();
    void retranslate();
    TreeFilter& filter() const;
    void applyText();
    void apply();
    void follow(const QStringList& hiddenLabels);
    void showState(const QStringList& hiddenLabels);
    void showLines(const QString& lines);
    void abandon();

    const Contributions& m_contributions;
    std::unique_ptr<TreeFilter> m_labelFilter;
    TreeFilter* m_appliedFilter = nullptr; ///< to notice that a module has registered another one
    QPointer<ProjectExplorer> m_explorer;
    bool m_hasFault = false;
    FilterField* m_field;
    QLabel* m_state;
};

} // namespace Gui
