#include "Kelta/PluginLoader.h"
#include "Kelta/RootClass.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <gmock/gmock.h>

namespace {

QString folderOfPlugin()
{
    return QFileInfo(QStringLiteral(VX_PLUGIN)).absolutePath();
}

/// Calls one entry alone.
void enter(const char* entry)
{
    const auto function = reinterpret_cast<void (*)()>(QLibrary::resolve(QStringLiteral(VX_PLUGIN), entry));
    ASSERT_NE(function, nullptr) << entry;
    function();
}

QStringList exportedSymbols()
{
    QProcess nm;
    nm.start(QStringLiteral(VX_NM), {"--dynamic", "--defined-only", "--demangle", "--format=posix", VX_PLUGIN});
    EXPECT_TRUE(nm.waitForFinished(120000)) << nm.errorString().toStdString();
    QStringList names;
    for (const QString& line : QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
        names << line.section(QRegularExpression(" [A-Za-z]( |$)"), 0, 0);
    return names;
}

QStringList missingIcons()
{
    QStringList missing;
    for (const char* name : {"importmaterial", "materialproject", "materialobject", "exportmaterial"}) {
        const QString path = QStringLiteral(":icons/norvex_%1.svg").arg(QLatin1String(name));
        if (!QFile::exists(path))
            missing << path;
    }
    return missing;
}

TEST(Plugin, BringsItsIconsOnlyWhenTheUserInterfaceIsInitialised)
{
    EXPECT_EQ(missingIcons().size(), 4);
    enter("initMat");
    EXPECT_EQ(missingIcons().size(), 4);
    enter("initMatGui");
    EXPECT_EQ(missingIcons(), QStringList());
}

TEST(Plugin, IsFoundInTheBuildTreeByItsName)
{
    Kelta::PluginLoader loader;
    EXPECT_TRUE(loader.load("vxMaterial")) << loader.errorText().toStdString();
    EXPECT_NE(Kelta::RootClass::createByName("Mat::MaterialObject"), nullptr);
}

TEST(Plugin, MayBeLoadedTwice)
{
    Kelta::PluginLoader loader({folderOfPlugin()});
    Kelta::PluginLoader other({folderOfPlugin()});
    for (Kelta::PluginLoader* each : {&loader, &loader, &other})
        EXPECT_TRUE(each->load("vxMaterial")) << each->errorText().toStdString();
}

TEST(Plugin, ExportsItsEntriesAndTheClassesOfItsLayersAlone)
{
    const QStringList symbols = exportedSymbols();
    EXPECT_TRUE(symbols.contains("initMat"));
    EXPECT_TRUE(symbols.contains("initMatGui"));
    EXPECT_TRUE(symbols.contains("Mat::MaterialObject::check_input()"));
    EXPECT_TRUE(symbols.contains("Mat::DocumentMaterial::check_all_materials()"));
    EXPECT_TRUE(symbols.contains("vxMaterial::vxMaterial()"));

    const QRegularExpression allowed("^(initMat|initMatGui|ComboBoxItemDelegate::.*|"
                                     "((vtable|typeinfo|typeinfo name) for |non-virtual thunk to "
                                     ")?(Mat|MatGui|vxMaterial|ComboBoxItemDelegate)(::.*)?)$");
    for (const QString& symbol : symbols)
        EXPECT_TRUE(allowed.match(symbol).hasMatch()) << symbol.toStdString();
}

TEST(Plugin, ExportsHowFourOfItsClassesAreMadeAndKnownAndKeepsThatOfTheProjectNode)
{
    const QStringList symbols = exportedSymbols();
    const QStringList operations = {"create()", "init()", "getClassTypeId()"};
    for (const char* exported :
         {"Mat::DocumentMaterial", "Mat::MaterialObject", "MatGui::SimModule", "MatGui::ViewFeederMaterialObject"})
        for (const QString& operation : operations)
            EXPECT_TRUE(symbols.contains(QStringLiteral("%1::%2").arg(QLatin1String(exported), operation)))
                << exported << "::" << operation.toStdString();
    EXPECT_TRUE(symbols.contains("MatGui::ViewFeederDocumentMaterial::ViewFeederDocumentMaterial()"));
    for (const QString& kept : operations + QStringList("classTypeId"))
        EXPECT_FALSE(symbols.contains(QStringLiteral("MatGui::ViewFeederDocumentMaterial::%1").arg(kept)))
            << kept.toStdString();
}

TEST(Plugin, KeepsItsHelpersToItself)
{
    for (const QString& symbol : exportedSymbols())
        for (const char* internal : {"showCritical", "showWarning", "registerIcons", "qInitResources"})
            EXPECT_FALSE(symbol.contains(QLatin1String(internal))) << symbol.toStdString();
}

} // namespace
