#include "vxInspector/units/UnitTexts.h"

#include <QCoreApplication>

namespace vxInspector {

namespace {

std::string translate(const char* context, const char* english)
{
    return QCoreApplication::translate(context, english).toStdString();
}

/// Translates the names of quantities too. In a failure, a text that the user has typed may be the same as a name.
std::string translateWithNames(const char* context, const char* english)
{
    std::string text = translate(context, english);
    return text == english ? translate("vxMat::PropertyName", english) : text;
}

} // namespace

QString translated(const vxUnits::Message& message)
{
    return QString::fromStdString(message.text(translateWithNames));
}

QString translated(const vxUnits::Failure& failure)
{
    return QString::fromStdString(failure.text(translate));
}

QString translated(vxUnits::Failure failure, const std::string& typed)
{
    for (std::string& argument : failure.message.arguments) {
        if (argument != typed)
            argument = translate("vxMat::PropertyName", argument.c_str());
    }
    return translated(failure);
}

QString translated(const vxUnits::Doubt& doubt)
{
    return QString::fromStdString(doubt.text(translateWithNames));
}

QString translatedWord(const char* english)
{
    return QCoreApplication::translate("vxUnits::Word", english);
}

} // namespace vxInspector
