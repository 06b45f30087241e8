#include "tree/LabelFilter.h"

#include "Obj/ProjectObject.h"

#include <algorithm>

namespace Gui {

std::optional<FilterFault> LabelFilter::setExpression(const QString& text)
{
    m_words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::nullopt;
}

bool LabelFilter::matches(const Obj::ProjectObject& object)
{
    const QString label = QString::fromStdString(object.label.getValue());
    return std::all_of(m_words.begin(), m_words.end(),
                       [&label](const QString& word) { return label.contains(word, Qt::CaseInsensitive); });
}

} // namespace Gui
