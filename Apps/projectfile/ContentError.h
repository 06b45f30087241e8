#pragma once

#include "projectfile/ProjectFileExport.h"

#include <stdexcept>
#include <string>

namespace projectfile {

/// An error in the content of a project file, of a record, or of a document to be imported. (An error of reading or
/// writing a file is a StoreError.)
///
/// The message is in the user's language and in UTF-8. It names the place in the file, but not the file itself; the
/// caller knows the file.
class PROJECTFILE_EXPORT ContentError : public std::runtime_error
{
public:
    /// The text is not JSON, or not a document of the expected kind. `line` and `column` count from 1; they are 0 if
    /// the place is unknown.
    explicit ContentError(const std::string& message, int line = 0, int column = 0);
    /// The member is invalid. `member` is its path, for example "materials[3].label".
    ContentError(const std::string& message, std::string member);
    ~ContentError() override;

    int line() const { return m_line; }
    int column() const { return m_column; }
    /// Returns the path of the invalid member; empty if it is unknown.
    const std::string& member() const { return m_member; }

private:
    int m_line = 0;
    int m_column = 0;
    std::string m_member;
};

} // namespace projectfile
