#pragma once

#include "Gui/TreeFilter.h"

#include <QLineEdit>
#include <QRect>

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

    /// Moves the list of completions so that it covers neither the field nor a widget below the field. To be called again
    /// if the place, size or visibility of the widget changes.
    void keepListBelow(const QWidget& widget);

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
    void showList();

    Source m_source;
    std::vector<FilterCompletion> m_offered;
    QStandardItemModel* m_list;
    QCompleter* m_completer;
    QRect m_anchor; ///< the place that the list does not cover; invalid before keepListBelow()
    QAction* m_warning;
};

} // namespace Gui
