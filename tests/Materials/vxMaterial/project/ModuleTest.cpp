#include "vxMaterial/project/Module.h"

#include "ProjectTesting.h"

#include "Gui/CommandController.h"
#include "Gui/GuiApplication.h"
#include "Gui/Translator.h"

#include <QFile>
#include <QSignalSpy>

#include <memory>
#include <type_traits>

namespace {

static_assert(std::is_default_constructible_v<vxMaterial> && std::is_copy_assignable_v<vxMaterial>);

TEST(Module, RegistersTheProjectClassesUnderTheirParents)
{
    initMat();
    const auto document = Kelta::TypeInfo::find("Mat::DocumentMaterial");
    const auto object = Kelta::TypeInfo::find("Mat::MaterialObject");
    EXPECT_EQ(document, Mat::DocumentMaterial::getClassTypeId());
    EXPECT_EQ(object, Mat::MaterialObject::getClassTypeId());
    EXPECT_STREQ(document.get_name(), "Mat::DocumentMaterial");
    EXPECT_STREQ(object.get_name(), "Mat::MaterialObject");
    Obj::initObj();
    EXPECT_EQ(document.getParent(), Obj::Project::getClassTypeId());
    EXPECT_EQ(object.getParent(), Obj::ProjectObject::getClassTypeId());
}

TEST(Module, CreatesAMaterialByItsRegisteredName)
{
    initMat();
    const auto created = Kelta::RootClass::createByName("Mat::MaterialObject");
    const auto* const object = dynamic_cast<const Mat::MaterialObject*>(created.get());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->getTypeId(), Mat::MaterialObject::getClassTypeId());
    EXPECT_STREQ(object->get_viewfeeder_name(), "MatGui::ViewFeederMaterialObject");
}

TEST(Module, CreatesAProjectByItsRegisteredName)
{
    initMat();
    const auto created = Kelta::RootClass::createByName("Mat::DocumentMaterial");
    const auto* const document = dynamic_cast<const Mat::DocumentMaterial*>(created.get());
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->getTypeId(), Mat::DocumentMaterial::getClassTypeId());
    EXPECT_STREQ(document->get_viewfeeder_name(), "MatGui::ViewFeederDocumentMaterial");
}

TEST(Module, MayBeInitialisedAgain)
{
    initMat();
    const auto before = Mat::MaterialObject::getClassTypeId();
    initMat();
    EXPECT_EQ(Mat::MaterialObject::getClassTypeId(), before);
}

TEST(Module, ReloadsTheTranslationsAfterItsRegistration)
{
    initMat();
    QSignalSpy refreshed(Gui::Translator::instance(), &Gui::Translator::languageChanged);
    bool complete = false;
    QObject::connect(Gui::Translator::instance(), &Gui::Translator::languageChanged, [&complete] {
        complete = Gui::GuiApplication::Instance->get_command_manager().findCommand("Mat_Export") != nullptr &&
                   Kelta::TypeInfo::find("MatGui::ViewFeederDocumentMaterial").namesAType() &&
                   QFile::exists(QStringLiteral(":icons/norvex_materialobject.svg"));
    });
    initMatGui();
    EXPECT_EQ(refreshed.count(), 1);
    EXPECT_TRUE(complete);
    Gui::Translator::instance()->disconnect();
}

TEST(Module, HasAModuleClassThatDoesNothing)
{
    vxMaterial module;
    const vxMaterial other;
    EXPECT_EQ(&(module = other), &module);
}

} // namespace
