#include "vxInspector/units/UnitTexts.h"

#include <QCoreApplication>

namespace vxInspector {

namespace {

std::string translate(const char* context, const char* english)
{
    return QCoreApplication::translate(context, english).toStdString();
}

} // namespace

std::string translateWithNames(const char* context, const char* english)
{
    std::string text = translate(context, english);
    return text == english ? translate("vxMat::PropertyName", english) : text;
}

QString translated(const vxUnits::Message& message)
{
    return QString::fromStdString(message.text(translateWithNames));
}

QString translated(const vxUnits::Failure& failure)
{
    return QString::fromStdString(failure.text(translateWithNames));
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
