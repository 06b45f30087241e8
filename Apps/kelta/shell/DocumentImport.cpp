#include "kelta/DocumentImport.h"

#include <map>
#include <utility>

namespace desktop {

namespace {

struct Registered
{
    DocumentImport import;
    DocumentFilters filters;
};

std::map<std::string, Registered>& imports()
{
    static std::map<std::string, Registered> registered;
    return registered;
}

/// Returns the import into projects of a class or its nearest base class; null if there is none.
const Registered* find(Kelta::TypeInfo projectClass)
{
    for (Kelta::TypeInfo type = projectClass; type.namesAType(); type = type.getParent())
        if (const auto found = imports().find(type.get_name()); found != imports().end())
            return &found->second;
    return nullptr;
}

} // namespace

void registerDocumentImport(const std::string& projectClass, DocumentImport import, DocumentFilters filters)
{
    imports()[projectClass] = {std::move(import), std::move(filters)};
}

std::vector<std::string> documentImportClasses()
{
    std::vector<std::string> classes;
    for (const auto& [projectClass, registered] : imports())
        classes.push_back(projectClass);
    return classes;
}

const DocumentImport* findDocumentImport(Kelta::TypeInfo projectClass)
{
    const Registered* const found = find(projectClass);
    return found != nullptr ? &found->import : nullptr;
}

QStringList documentFilters(Kelta::TypeInfo projectClass)
{
    const Registered* const found = find(projectClass);
    return found != nullptr && found->filters ? found->filters() : QStringList();
}

} // namespace desktop
