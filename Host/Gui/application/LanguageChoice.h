#pragma once

#include <QString>

#include <vector>

namespace Gui {

/// A language that the user can choose, with its title in menus and lists.
struct LanguageChoice
{
    QString language; ///< as Translator::chooseLanguage takes it; empty for the language of the system
    QString title;    ///< for menus: "Deutsch", in the language itself; "&System" in the language of the program
};

/// Returns the choices: the language of the system, then the languages of the program.
std::vector<LanguageChoice> languageChoices();

} // namespace Gui
