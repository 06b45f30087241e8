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

/// One material of a material project: a node of the project tree that the user edits in the material editor.
///
/// The object owns one CMaterial as long as it exists. The host has access to its id, class and label only; the
/// properties of the material are not host properties.
class VXMATERIAL_EXPORT MaterialObject : public Obj::ProjectObject
{
    OBJ_CLASS;

public:
    /// Makes an object in state 0. Its material has no properties.
    MaterialObject();
    ~MaterialObject() override;

    const char* get_viewfeeder_name() const override; ///< "MatGui::ViewFeederMaterialObject"
    void refreshProperties(bool stateToo) override;
    short always_run() const override; ///< -1: the host always executes the object
    void save_jsonDB(Json::Value& record) override;
    /// Does nothing: the host restores the whole content of the record.
    void load_jsonDB(Json::Value& record) override;
    /// Sets and returns state 3 if the material has at least one property, otherwise state 0. Does not check values.
    Obj::eVXObjectState check_input() override;
    /// Returns a result that names the object, and has no other effect. The caller owns the result. Returns null if
    /// memory runs out.
    Obj::ProjectObjectExecReturn* execute() override;

    /// Returns the material, which the object owns; never null.
    vxMat::CMaterial* getCMaterial() const { return material.get(); }
    /// Copies `source`, which must not be null, into the material, as CMaterial::copyFrom does.
    void setCMaterial(const vxMat::MaterialBase* source);
    /// Copies structural steel into the material if the type is eMaterialType::StructuralSteel; leaves the material
    /// unchanged for every other type. Calls check_input in both cases.
    void initCMaterial(vxMat::eMaterialType type);
    /// Returns the database of the project of the object. The object must be in a project, which must be a
    /// DocumentMaterial.
    vxMat::MatDBManager& getMatMgr() const;

    int getRowCounts() const { return rowCounts; }
    void setRowCounts(int count) { rowCounts = count; }
    int getColumnCounts() const { return columnCounts; }

    /// Returns whether the material has properties and the number of each of them is greater than 0. If not, shows the
    /// first fault in a message box, or writes it to the message log in a program without windows.
    ///
    /// The check includes the numbers of words and lists, which are 0, and therefore refuses materials with such
    /// properties. vxMat::checkMaterial has the rules that take the quantities into account.
    bool check_input_data();

    /// Returns true and writes nothing: single materials are not exported.
    bool exportToFile(const std::string& path, char, char, char) const;
    /// Returns false and reads nothing: single materials are not imported.
    bool importFromFile(const std::string& path, char, char, char);

protected:
    void on_configuring_project() override;
    void on_changed(const Obj::Property* changed) override;

private:
    // For extensions of the host; the module does not use them.
    boost::signals2::signal<boost::any(), boost::signals2::last_value<boost::any>> m_dataRequested;
    std::map<int, int> m_dataIndices;

    int rowCounts = 0;
    int columnCounts = 4;

    // Not registered, and therefore not visible as host properties.
    Obj::PropertyInteger m_rows;
    Obj::PropertyInteger m_columns;
    Obj::PropertyCoupleArray m_couples;
    boost::signals2::scoped_connection m_objectConnection;
    boost::signals2::scoped_connection m_projectConnection;

    std::unique_ptr<vxMat::CMaterial> material;
};

} // namespace Mat
