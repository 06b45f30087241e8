#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace commandline {

/// The exit statuses of the program.
enum class Status : int
{
    Clean = 0,         ///< done; no findings
    Findings = 1,      ///< done; the input has errors or differences
    Error = 2,         ///< not done: an invalid command line, an unreadable file, a failed write
    Interrupted = 130, ///< the user ended it (Ctrl+C); nothing is written
};

/// The output of a subcommand and its exit status.
struct Answer
{
    void add(const std::vector<std::string>& more) { messages.insert(messages.end(), more.begin(), more.end()); }

    std::string text;                  ///< for standard output
    std::vector<std::string> messages; ///< for standard error, one line each
    Status status = Status::Clean;
};

/// The reason why a subcommand failed. The text begins with the name of the file or with the argument.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The format of the standard output.
enum class Form
{
    Text,
    Json
};

} // namespace commandline
