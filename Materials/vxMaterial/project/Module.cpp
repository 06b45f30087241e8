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

#include <QCoreApplication>

#include <new>

namespace {

/// Gives the manager, which owns them, a new command of each class. Memory may run out; the manager ignores null.
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
    const QString failure =
        QCoreApplication::translate("vxMaterial", "The materials module could not register its projects");
    Kelta::guarded(failure, [] {
        Mat::DocumentMaterial::init();
        Mat::MaterialObject::init();
    });
}

void initMatGui()
{
    if (Gui::GuiApplication::Instance == nullptr)
        return;
    const QString failure =
        QCoreApplication::translate("vxMaterial", "The materials module could not register its user interface");
    Kelta::guarded(failure, [] {
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
