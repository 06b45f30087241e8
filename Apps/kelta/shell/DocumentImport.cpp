#include "kelta/DocumentImport.h"

#include <map>
#include <utility>

namespace desktop {

namespace {

std::map<std::string, DocumentImport>& imports()
{
    static std::map<std::string, DocumentImport> registered;
    return registered;
}

} // namespace

void registerDocumentImport(const std::string& projectClass, DocumentImport import)
{
    imports()[projectClass] = std::move(import);
}

std::vector<std::string> documentImportClasses()
{
    std::vector<std::string> classes;
    for (const auto& [projectClass, import] : imports())
        classes.push_back(projectClass);
    return classes;
}

const DocumentImport* findDocumentImport(Kelta::TypeInfo projectClass)
{
    for (Kelta::TypeInfo type = projectClass; type.namesAType(); type = type.getParent())
        if (const auto found = imports().find(type.get_name()); found != imports().end())
            return &found->second;
    return nullptr;
}

} // namespace desktop
