#include "Kelta/MessageLog.h"
#include "Kelta/PluginLoader.h"
#include "Obj/Application.h"

#include <QFile>
#include <QFileInfo>
#include <gmock/gmock.h>

namespace {

TEST(PluginWithoutWindows, BringsTheProjectClassesAndNothingForTheUserInterface)
{
    Obj::initObj();
    Kelta::PluginLoader loader({QFileInfo(QStringLiteral(VX_PLUGIN)).absolutePath()});
    ASSERT_TRUE(loader.load("vxMaterial")) << loader.errorText().toStdString();

    EXPECT_TRUE(Kelta::TypeInfo::find("Mat::MaterialObject").namesAType());
    for (const char* name : {"MatGui::SimModule", "MatGui::ViewFeederMaterialObject",
                             "MatGui::ViewFeederDocumentMaterial", "MatGui::MaterialView"})
        EXPECT_FALSE(Kelta::TypeInfo::find(name).namesAType()) << name;
    EXPECT_FALSE(QFile::exists(":icons/norvex_materialobject.svg"));
    EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), 0U);
}

TEST(PluginWithoutWindows, MakesProjectsAndMaterials)
{
    Obj::initObj();
    Kelta::PluginLoader loader({QFileInfo(QStringLiteral(VX_PLUGIN)).absolutePath()});
    ASSERT_TRUE(loader.load("vxMaterial")) << loader.errorText().toStdString();
    Obj::Project* const project = Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials");
    ASSERT_NE(project, nullptr);
    EXPECT_NE(project->add_object("Mat::MaterialObject", "Material"), nullptr);
    Obj::Application::instance().closeAllProjects();
}

} // namespace
