#pragma once

#include <QTemporaryDir>
#include <json/value.h>

#include <string>
#include <vector>

namespace vxtest {

/// The exit status and the output of a run of the program.
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

/// Runs vxmat and returns its standard output as JSON. The test fails if the status is not 0 or standard error is not
/// empty.
Json::Value vxmatJson(const std::vector<std::string>& arguments);

/// Returns the lines of a text.
std::vector<std::string> linesOf(const std::string& text);

/// A temporary folder. The destructor removes it with its files.
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
