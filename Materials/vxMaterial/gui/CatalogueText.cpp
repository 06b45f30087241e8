#include "CatalogueText.h"

#include <QCoreApplication>

namespace MatGui {

namespace {

QString translate(const char* context, const std::string& text, const char* comment)
{
    const QString translated = QCoreApplication::translate(context, text.c_str(), comment);
    // The translator ends texts at a zero byte, which must not cut one that it does not know.
    return translated == QString::fromUtf8(text.c_str()) ? QString::fromStdString(text) : translated;
}

} // namespace

QString translateMaterialName(const std::string& name)
{
    return translate("vxMat::MaterialBase", name, nullptr);
}

QString translatePropertyText(const std::string& text, const char* kind)
{
    return translate("vxMat::MaterialProperty", text, kind);
}

} // namespace MatGui
