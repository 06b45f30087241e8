#include "application/LanguageChoice.h"

#include "Gui/Translator.h"

#include <QCoreApplication>

namespace Gui {

std::vector<LanguageChoice> languageChoices()
{
    std::vector<LanguageChoice> choices{{QString(), QCoreApplication::translate("StandardCommand", "&System")}};
    for (const QString& language : Translator::instance()->languages())
        choices.push_back({language, Translator::nameOf(language)});
    return choices;
}

} // namespace Gui
