#pragma once

#include <QTemporaryDir>
#include <json/value.h>

#include <string>
#include <vector>

namespace vxtest {

/// How a run of the program ended, and what it printed.
struct Outcome
{
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs vxmat with arguments and a standard input.
Outcome vxmat(const std::vector<std::string>& arguments, const std::string& input = {});

/// Runs a shell command line in which "$VXMAT" is the program.
Outcome shell(const std::string& command);

/// The standard output as JSON, of a run that must end with status 0 and print no errors.
Json::Value vxmatJson(const std::vector<std::string>& arguments);

/// A folder that is removed with its files when the test ends.
class Folder
{
public:
    std::string path(const std::string& name) const;
    /// Writes a file and returns its path.
    std::string file(const std::string& name, const std::string& text) const;
    /// Returns the names of all files in the folder, hidden ones included.
    std::vector<std::string> names() const;

private:
    QTemporaryDir m_folder;
};

} // namespace vxtest
