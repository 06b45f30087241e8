#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ClassRegistration.h"
#include "Obj/Project.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/PluginExport.h"

#include <json/value.h>

#include <memory>
#include <string>

namespace vxCAE {
class CAESet;
} // namespace vxCAE

namespace Mat {

/// The document tag of material projects.
inline constexpr Kelta::eDocumentTag materialProjectTag{2};

/// The material project: its objects are materials, and all of them share its database of library and catalogue.
class VXMATERIAL_EXPORT DocumentMaterial : public Obj::Project
{
    OBJ_CLASS;

public:
    /// A project with the tag of material projects and a filled database.
    DocumentMaterial();
    ~DocumentMaterial() override;

    const char* get_viewfeeder_name() const override; ///< "MatGui::ViewFeederDocumentMaterial"
    /// Always state 0: a project as a whole is never ready or not.
    Obj::eVXObjectState check_input() override;
    /// Hands copies of all materials, as one exchange set under the project's id, to the exchange-set manager. Each
    /// material first takes its object's label as its name, so that the solver knows it as the user does. The manager
    /// keeps the set until the project is closed.
    void collect_frontend_data() override;
    /// The project's record: tag, id, and of each material id, class, internal name and label. Values are not in it.
    void save_jsonDB(Json::Value& record) override;
    /// Nothing: the application restores projects.
    void load_jsonDB(Json::Value& record) override;
    /// Nothing: material projects have no part in the host's XML files.
    void Save(Kelta::FileWriter& writer) const override;
    void Load(Kelta::XMLFileReader& reader) override;

    vxMat::MatDBManager& getMatMgr() { return matMgr; }

    /// MaterialObject::check_input_data of each material in order, up to the first that fails. A project without
    /// materials passes.
    bool check_all_materials();
    /// Likewise of one object, which must be a material; false when the project has no such object.
    bool check_material_input(unsigned int objectId);

    /// Writes the exchange set as styled JSON, the materials named and copied as collect_frontend_data does. The three
    /// characters are not used.
    ///
    /// The answer is always true: whether the file could be opened or written is not asked. What stood in the file is
    /// gone as soon as it is opened; on a full disk a part of the document or nothing is left.
    bool exportToFile(const std::string& path, char, char, char);

    Obj::PropertyString physicsType; ///< "PhysicsType"

private:
    std::unique_ptr<vxCAE::CAESet> makeCAESet();
    void load_cae_set(vxCAE::CAESet* set);

    vxMat::MatDBManager matMgr;
};

} // namespace Mat
