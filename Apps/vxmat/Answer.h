#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace vxmat {

/// The exit statuses of the program.
enum class Status : int
{
    Clean = 0,    ///< done, nothing is wrong
    Findings = 1, ///< done, but something is wrong with what was read
    Error = 2,    ///< not done: a wrong command line, an unreadable file, a failed write
};

/// What a subcommand prints, and its status.
struct Answer
{
    void add(const std::vector<std::string>& more) { messages.insert(messages.end(), more.begin(), more.end()); }

    std::string text;                  ///< for standard output
    std::vector<std::string> messages; ///< for standard error, a line each
    Status status = Status::Clean;
};

/// Why a subcommand could not do its work. The text begins with the name of the file or argument.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The form in which a listing is printed.
enum class Form
{
    Text,
    Json
};

} // namespace vxmat
