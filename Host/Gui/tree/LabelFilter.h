#pragma once

#include "Gui/TreeFilter.h"

#include <QStringList>

namespace Gui {

/// Finds the objects whose labels have all words of the text, in any order and case.
class LabelFilter : public TreeFilter
{
public:
    std::optional<FilterFault> setExpression(const QString& text) override;
    bool matches(const Obj::ProjectObject& object) override;

private:
    QStringList m_words;
};

} // namespace Gui
