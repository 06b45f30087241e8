#pragma once

#include "projectfile/ProjectFileExport.h"

#include <stdexcept>
#include <string>

namespace projectfile {

/// What is wrong with the content of a project file, of a record, or of a document to be imported. (What is wrong with
/// a file as a file is a StoreError.)
///
/// The message is in the user's language and in UTF-8. It names the place, but not the file, which the caller knows.
class PROJECTFILE_EXPORT ContentError : public std::runtime_error
{
public:
    /// The text is not JSON, or not a document of the kind that is wanted. `line` and `column` count from 1; they are 0
    /// if no place is known.
    explicit ContentError(const std::string& message, int line = 0, int column = 0);
    /// A member is wrong: "materials[3].label".
    ContentError(const std::string& message, std::string member);
    ~ContentError() override;

    int line() const { return m_line; }
    int column() const { return m_column; }
    /// The path of the member that is wrong; empty if none is known.
    const std::string& member() const { return m_member; }

private:
    int m_line = 0;
    int m_column = 0;
    std::string m_member;
};

} // namespace projectfile
