#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ClassRegistration.h"
#include "Obj/Project.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/PluginExport.h"

#include <json/value.h>

#include <memory>
#include <string>
#include <vector>

namespace vxCAE {
class CAESet;
} // namespace vxCAE

namespace Mat {

class MaterialObject;

/// The document tag of material projects.
inline constexpr Kelta::eDocumentTag materialProjectTag{2};

/// The material project. Its objects are materials, which share its database with library and catalogue.
class VXMATERIAL_EXPORT DocumentMaterial : public Obj::Project
{
    OBJ_CLASS;

public:
    /// Makes a project with the tag of material projects and a filled database.
    DocumentMaterial();
    ~DocumentMaterial() override;

    const char* get_viewfeeder_name() const override; ///< "MatGui::ViewFeederDocumentMaterial"
    /// Returns state 0: a project as a whole has no state.
    Obj::eVXObjectState check_input() override;
    /// Gives copies of all materials, as one exchange set under the project's id, to the exchange-set manager, which
    /// keeps the set until the project is closed. First sets the name of each material to the label of its object, so
    /// that the solver has the name that the user sees.
    void collect_frontend_data() override;
    /// Writes the project's record: tag and id, and for each material the id, class, internal name and label. The
    /// record does not contain values of properties.
    void save_jsonDB(Json::Value& record) override;
    /// Does nothing: the application restores projects.
    void load_jsonDB(Json::Value& record) override;
    /// Does nothing: the host's XML files do not contain material projects.
    void Save(Kelta::FileWriter& writer) const override;
    void Load(Kelta::XMLFileReader& reader) override;

    vxMat::MatDBManager& getMatMgr() { return matMgr; }

    /// Calls MaterialObject::check_input_data of each material in order, up to the first failure, and returns whether
    /// all calls succeed. A project without materials passes.
    bool check_all_materials();
    /// Returns MaterialObject::check_input_data of one object, which must be a material; false if the project does not
    /// have the object.
    bool check_material_input(unsigned int objectId);

    /// Writes the exchange set as styled JSON. The materials are named and copied as in collect_frontend_data. The
    /// three characters are not used.
    ///
    /// Returns true, even if the file cannot be opened or written. Opening the file discards its earlier contents; on a
    /// full disk the file contains a part of the document or nothing.
    bool exportToFile(const std::string& path, char, char, char);

    Obj::PropertyString physicsType; ///< "PhysicsType"

private:
    std::unique_ptr<vxCAE::CAESet> makeCAESet();
    void load_cae_set(vxCAE::CAESet* set);

    vxMat::MatDBManager matMgr;
};

/// Returns the materials of a project, which owns them, in the order of its objects.
VXMATERIAL_EXPORT std::vector<MaterialObject*> materialsOf(const Obj::Project& project);

} // namespace Mat
