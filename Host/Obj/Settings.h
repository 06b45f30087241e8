#pragma once

#include "Obj/ObjExport.h"

#include <cstddef>
#include <map>
#include <string>

namespace Obj {

/// The settings of a project or an object: texts by name, in UTF-8. No text is empty: a setting with an empty text is the
/// same as a missing setting.
class OBJ_EXPORT Settings
{
public:
    const std::map<std::string, std::string>& getAll() const { return m_texts; }
    /// Returns a setting; an empty text if it is missing. The text is valid until the setting changes.
    const std::string& get(const std::string& name) const;
    /// Stores a setting, or removes it if `text` is empty. Returns false if it had this text already.
    bool set(const std::string& name, std::string text);

    /// Returns the bytes that the settings take outside this object, an estimate.
    std::size_t getMemoryUsage() const;

private:
    std::map<std::string, std::string> m_texts;
};

} // namespace Obj
