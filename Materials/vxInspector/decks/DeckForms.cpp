#include "vxInspector/decks/DeckForms.h"

#include <QCoreApplication>

#include <algorithm>

namespace vxInspector {

namespace {

using vxDecks::Dialect;
using vxDecks::FieldForm;
using vxDecks::Format;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::DeckForms", text);
}

std::vector<DeckForm> formsOfKeywords()
{
    constexpr Format format = Format::Calculix;
    return {{format, "", tr("As CalculiX reads it")},
            {format, "commercial", tr("As the commercial relative of CalculiX reads it"), Dialect::Commercial}};
}

std::vector<DeckForm> formsOfFields()
{
    const auto form = [](const char* name, const QString& title, FieldForm fields) {
        return DeckForm{Format::Nastran, name, title, Dialect::Standard, fields};
    };
    return {form("", tr("Fields of 8 characters, of 16 if a number needs them"), FieldForm::AsNeeded),
            form("small", tr("Small fields: 8 characters, numbers are rounded"), FieldForm::Small),
            form("large", tr("Large fields: 16 characters"), FieldForm::Large),
            form("free", tr("Free fields, separated by commas"), FieldForm::Free)};
}

} // namespace

std::vector<DeckForm> deckForms(Format format)
{
    switch (format) {
    case Format::Calculix:
        return formsOfKeywords();
    case Format::Nastran:
        return formsOfFields();
    default:
        return {};
    }
}

DeckForm deckForm(Format format, const std::string& name)
{
    const std::vector<DeckForm> forms = deckForms(format);
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&name](const DeckForm& one) { return one.name == name; });
    if (found != forms.end())
        return *found;
    return forms.empty() ? DeckForm{format} : forms.front();
}

} // namespace vxInspector
