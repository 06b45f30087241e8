#include "vxMaterial/project/Module.h"

#include "Icons.h"

#include "Gui/GuiApplication.h"
#include "Gui/Translator.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/gui/Commands.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SimModule.h"
#include "vxMaterial/gui/ViewFeederDocumentMaterial.h"
#include "vxMaterial/gui/ViewFeederMaterialObject.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <new>

namespace {

/// The manager takes the commands over; it ignores one for which there was no memory.
template <typename... Commands>
void registerEach(Gui::CommandController& manager)
{
    (manager.new_command(new (std::nothrow) Commands), ...);
}

void registerCommands(Gui::CommandController& manager)
{
    using namespace MatGui;
    registerEach<MatCmdNewDoc, MatCmdDelDoc, MatCmdMaterial, MatCmdDelete, MatCmdEdit, CmdMatImport, CmdMatExport>(
        manager);
}

} // namespace

void initMat()
{
    Kelta::guarded(QStringLiteral("initMat"), [] {
        Mat::DocumentMaterial::init();
        Mat::MaterialObject::init();
    });
}

void initMatGui()
{
    if (Gui::GuiApplication::Instance == nullptr)
        return;
    Kelta::guarded(QStringLiteral("initMatGui"), [] {
        registerCommands(Gui::GuiApplication::Instance->get_command_manager());
        MatGui::SimModule::init();
        MatGui::ViewFeederMaterialObject::init();
        MatGui::ViewFeederDocumentMaterial::init();
        MatGui::MaterialView::init();
        MatGui::registerIcons();
        Gui::Translator::instance()->refresh();
    });
}

vxMaterial::vxMaterial() = default;

vxMaterial& vxMaterial::operator=(const vxMaterial&) = default;

vxMaterial::~vxMaterial() = default;
