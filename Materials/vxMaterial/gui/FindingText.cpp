#include "vxMaterial/gui/FindingText.h"

#include "CatalogueText.h"

#include <QCoreApplication>

namespace MatGui {

namespace {

QString translated(const vxMat::FindingArgument& argument)
{
    using Kind = vxMat::FindingArgument::Kind;
    switch (argument.kind) {
    case Kind::QuantityName:
        return translatePropertyText(argument.text, PropertyText::Name);
    case Kind::Word:
        return translatePropertyText(argument.text, PropertyText::Value);
    case Kind::CardName:
        return QCoreApplication::translate("vxCAE::SolverCard", argument.text.c_str());
    case Kind::Text:
        break;
    }
    return QString::fromStdString(argument.text);
}

} // namespace

QString findingText(vxMat::MaterialFinding finding)
{
    const QByteArray message = QCoreApplication::translate(vxMat::findingContext, finding.message).toUtf8();
    finding.message = message.constData();
    for (vxMat::FindingArgument& argument : finding.arguments)
        argument.text = translated(argument).toStdString();
    return QString::fromStdString(toText(finding));
}

} // namespace MatGui
