#pragma once

#include "Gui/GuiExport.h"

#include <QString>

#include <optional>
#include <vector>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Gui {

/// The reason why an expression cannot be read, and the part that is at fault.
struct FilterFault
{
    QString reason;   ///< a sentence in the language of the user
    int position = 0; ///< in characters
    int length = 0;   ///< 0 if something is missing at the position
};

/// A text that can follow in an expression. It replaces a part of the text up to the cursor.
struct FilterCompletion
{
    /// What can follow the text.
    enum class Next
    {
        Word, ///< the next word, after a blank
        End,  ///< the text ends a condition
    };

    int begin = 0;
    int length = 0;
    QString text;
    QString meaning; ///< explains the text in the list; may be empty
    Next next = Next::Word;
};

/// The meaning of the text in the field above the project tree. A module registers one by Contributions::setTreeFilter; the
/// default filter finds objects by the words of their labels.
class GUI_EXPORT TreeFilter
{
public:
    TreeFilter();
    TreeFilter(const TreeFilter&) = delete;
    TreeFilter& operator=(const TreeFilter&) = delete;
    virtual ~TreeFilter();

    /// Takes a text that the user has typed. Returns the fault of a text that cannot be read; the expression before it
    /// then stays.
    virtual std::optional<FilterFault> setExpression(const QString& text) = 0;
    /// Returns a remark about the expression, in the language of the user: "did you mean ..."; empty by default.
    virtual QString remark() const;
    /// Returns whether the expression finds an object. Called for every object after each keystroke: must be fast. Must
    /// not change the object.
    virtual bool matches(const Obj::ProjectObject& object) = 0;
    /// Returns the texts that complete an expression at the cursor; none by default.
    virtual std::vector<FilterCompletion> completionsFor(const QString& text, int cursor) const;
    /// Returns a short hint for the empty field, and an explanation for its tool tip, in the language of the user.
    virtual QString hint() const;
    virtual QString explanation() const;
};

} // namespace Gui
