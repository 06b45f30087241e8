#include "materials/ForeignNames.h"

#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/DerivedValues.h"

#include <QDir>
#include <QFileInfo>
#include <QTranslator>

namespace commandline {

namespace {

/// Returns the folder with the translations: of an installed copy, or of the build tree.
QDir translationsFolder()
{
    const QDir folder = QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).absoluteDir();
    return folder.filePath(QStringLiteral(VXMAT_TRANSLATIONS_FOLDER));
}

/// Returns the English name of the quantity that a translation calls so; empty if there is none.
std::string findEnglishName(const QTranslator& translation, const QString& foreign)
{
    const auto isCalled = [&](const char* context, const char* name) {
        return translation.translate(context, name).compare(foreign, Qt::CaseInsensitive) == 0;
    };
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords())
        if (isCalled("vxMat::PropertyName", record.name))
            return record.name;
    for (const vxUnits::DerivedQuantity& derived : vxUnits::derivedQuantities())
        if (isCalled("vxUnits::Word", derived.name))
            return derived.name;
    return {};
}

} // namespace

std::string findEnglishName(const std::string& foreign)
{
    const QString name = QString::fromStdString(foreign);
    const QDir folder = translationsFolder();
    for (const QString& file : folder.entryList({QStringLiteral("vxMaterial_*.qm")}, QDir::Files, QDir::Name)) {
        QTranslator translation;
        if (!translation.load(folder.filePath(file)))
            continue;
        if (std::string english = findEnglishName(translation, name); !english.empty())
            return english;
    }
    return {};
}

} // namespace commandline
