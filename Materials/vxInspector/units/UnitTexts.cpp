#include "vxInspector/units/UnitTexts.h"

#include <QCoreApplication>

namespace vxInspector {

namespace {

std::string translate(const char* context, const char* english)
{
    return QCoreApplication::translate(context, english).toStdString();
}

template <class Text>
QString inUsersLanguage(const Text& text)
{
    return QString::fromStdString(text.text(translate));
}

} // namespace

QString translated(const vxUnits::Message& message)
{
    return inUsersLanguage(message);
}

QString translated(const vxUnits::Failure& failure)
{
    return inUsersLanguage(failure);
}

QString translated(const vxUnits::Doubt& doubt)
{
    return inUsersLanguage(doubt);
}

QString translatedWord(const char* english)
{
    return QCoreApplication::translate("vxUnits::Word", english);
}

} // namespace vxInspector
