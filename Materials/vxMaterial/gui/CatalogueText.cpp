#include "CatalogueText.h"

#include <QCoreApplication>

namespace MatGui {

namespace {

const char* contextOf(PropertyText kind)
{
    switch (kind) {
    case PropertyText::Name:
        return "vxMat::PropertyName";
    case PropertyText::Value:
        return "vxMat::PropertyValue";
    case PropertyText::Description:
        return "vxMat::PropertyDescription";
    case PropertyText::Key:
        return "vxMat::PropertyKey";
    case PropertyText::Unit:
        return "vxMat::PropertyUnit";
    }
    return "";
}

QString translate(const char* context, const std::string& text)
{
    const QString translated = QCoreApplication::translate(context, text.c_str());
    // The translator ends a text at a zero byte. A text without a translation must stay whole.
    return translated == QString::fromUtf8(text.c_str()) ? QString::fromStdString(text) : translated;
}

} // namespace

QString translateMaterialName(const std::string& name)
{
    return translate("vxMat::MaterialBase", name);
}

QString translatePropertyText(const std::string& text, PropertyText kind)
{
    return translate(contextOf(kind), text);
}

} // namespace MatGui
