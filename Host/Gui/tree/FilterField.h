#pragma once

#include "Gui/TreeFilter.h"

#include <QLineEdit>

#include <functional>
#include <optional>
#include <vector>

class QCompleter;
class QModelIndex;
class QStandardItemModel;

namespace Gui {

/// The field for the expression of a tree filter. Offers completions in a list while the user types; Tab takes the chosen
/// one, or the first one. Return does so only if the text cannot be read as it is.
class FilterField : public QLineEdit
{
    Q_OBJECT

public:
    using Source = std::function<std::vector<FilterCompletion>(const QString& text, int cursor)>;

    /// `source` returns the completions. Must be callable as long as the field lives.
    explicit FilterField(Source source, QWidget* parent = nullptr);
    ~FilterField() override;

    /// Underlines the part of the text that is at fault, and shows a warning sign; removes both if there is no fault.
    void mark(const std::optional<FilterFault>& fault);

Q_SIGNALS:
    /// Sent when the user presses Escape, or Down or Return.
    void abandoned();
    void confirmed();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void confirm();
    void offer();
    bool take(int row);
    bool isOffering() const;

    Source m_source;
    std::vector<FilterCompletion> m_offered;
    QStandardItemModel* m_list;
    QCompleter* m_completer;
    QAction* m_warning;
};

} // namespace Gui
