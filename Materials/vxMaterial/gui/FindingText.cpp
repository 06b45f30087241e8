#include "vxMaterial/gui/FindingText.h"

#include "CatalogueText.h"

#include <QCoreApplication>

namespace MatGui {

QString findingText(vxMat::MaterialFinding finding)
{
    const QByteArray message = QCoreApplication::translate(vxMat::findingContext, finding.message).toUtf8();
    finding.message = message.constData();
    for (vxMat::FindingArgument& argument : finding.arguments)
        if (argument.kind == vxMat::FindingArgument::Kind::QuantityName)
            argument.text = translatePropertyText(argument.text, PropertyText::Name).toStdString();
    return QString::fromStdString(toText(finding));
}

} // namespace MatGui
