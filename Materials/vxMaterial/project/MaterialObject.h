#pragma once

#include "Obj/ClassRegistration.h"
#include "Obj/ProjectObject.h"
#include "Obj/ProjectObjectExecReturn.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/project/PluginExport.h"

#include <boost/any.hpp>
#include <boost/signals2/connection.hpp>
#include <boost/signals2/last_value.hpp>
#include <boost/signals2/signal.hpp>
#include <json/value.h>

#include <map>
#include <memory>
#include <string>

namespace vxMat {
class MatDBManager;
} // namespace vxMat

namespace Mat {

/// One material of a material project: a node of the project tree, which the user edits in the material editor.
///
/// It owns one CMaterial for its whole life. The host knows of it no more than id, class and label; the material's
/// properties are not host properties.
class VXMATERIAL_EXPORT MaterialObject : public Obj::ProjectObject
{
    OBJ_CLASS;

public:
    /// An object without properties, state 0.
    MaterialObject();
    ~MaterialObject() override;

    const char* get_viewfeeder_name() const override; ///< "MatGui::ViewFeederMaterialObject"
    void refreshProperties(bool stateToo) override;
    short always_run() const override; ///< -1: the host takes it as always to be run
    void save_jsonDB(Json::Value& record) override;
    /// Nothing: the record says only what the host knows already.
    void load_jsonDB(Json::Value& record) override;
    /// State 3 when the material has at least one property, else 0. Values are not looked at.
    Obj::eVXObjectState check_input() override;
    /// Nothing is done; the result names the object, and the caller owns it. Null when memory runs out.
    Obj::ProjectObjectExecReturn* execute() override;

    /// The material, never null; the object keeps it.
    vxMat::CMaterial* getCMaterial() const { return material.get(); }
    /// Copies `source`, not null, into the material as CMaterial::copyFrom does; the caller keeps it.
    void setCMaterial(const vxMat::MaterialBase* source);
    /// Makes the material structural steel for eMaterialType::StructuralSteel; every other type leaves it as it is.
    /// Checks the state anew in both cases.
    void initCMaterial(vxMat::eMaterialType type);
    /// The database of the project that the object is in. It must be in one, and that a DocumentMaterial.
    vxMat::MatDBManager& getMatMgr() const;

    int getRowCounts() const { return rowCounts; }
    void setRowCounts(int count) { rowCounts = count; }
    int getColumnCounts() const { return columnCounts; }

    /// Whether the material can be used: it has properties, and none of them has a number of 0 or less. Otherwise tells
    /// the user the first thing that is wrong in a message box, or in the message log of a program without windows.
    ///
    /// Every property is asked for its number, so words and lists, whose number is 0, are refused too.
    bool check_input_data();

    /// Materials are not exported one by one: nothing is written, and the answer is true.
    bool exportToFile(const std::string& path, char, char, char) const;
    /// Materials are not imported one by one: nothing is read, and the answer is false.
    bool importFromFile(const std::string& path, char, char, char);

protected:
    void on_configuring_project() override;
    void on_changed(const Obj::Property* changed) override;

private:
    // What the host's extensions hang on to; nothing in the module uses it.
    boost::signals2::signal<boost::any(), boost::signals2::last_value<boost::any>> dataRequested;
    std::map<int, int> dataIndices;

    int rowCounts = 0;
    int columnCounts = 4;

    // Never registered, so that nobody sees them.
    Obj::PropertyInteger rows;
    Obj::PropertyInteger columns;
    Obj::PropertyCoupleArray couples;
    boost::signals2::scoped_connection objectConnection;
    boost::signals2::scoped_connection projectConnection;

    std::unique_ptr<vxMat::CMaterial> material;
};

} // namespace Mat
