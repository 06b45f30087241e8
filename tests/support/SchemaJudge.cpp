#include "SchemaJudge.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vxtest {

namespace {

/// The validator, a process that runs until the test program ends. It reads a line with a schema and a file, and writes
/// a line for each fault of the file and an empty line at the end.
class Validator
{
public:
    Validator();
    Validator(const Validator&) = delete;
    Validator& operator=(const Validator&) = delete;
    ~Validator();

    /// Returns one line for each fault. The test fails if the validator stops before it has reported all faults.
    std::string judge(const std::string& schema, const std::string& file);

private:
    [[noreturn]] static void run(int socket);
    bool ask(const std::string& question);
    bool readLine(std::string& line);

    pid_t m_process = -1;
    int m_socket = -1;
    std::FILE* m_output = nullptr; ///< owns the socket
};

Validator::Validator()
{
    int sockets[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0)
        return;
    m_process = fork();
    if (m_process == 0)
        run(sockets[1]);
    close(sockets[1]);
    m_socket = sockets[0];
    m_output = fdopen(m_socket, "r");
}

void Validator::run(int socket)
{
    dup2(socket, STDIN_FILENO);
    dup2(socket, STDOUT_FILENO);
    execl(VX_PYTHON, VX_PYTHON, VX_VALIDATE_JSON, nullptr);
    _exit(127);
}

Validator::~Validator()
{
    if (m_output != nullptr)
        std::fclose(m_output);
    if (m_process > 0)
        waitpid(m_process, nullptr, 0);
}

bool Validator::ask(const std::string& question)
{
    return m_output != nullptr &&
           send(m_socket, question.data(), question.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(question.size());
}

bool Validator::readLine(std::string& line)
{
    line.clear();
    for (int c = std::fgetc(m_output); c != EOF; c = std::fgetc(m_output)) {
        if (c == '\n')
            return true;
        line += static_cast<char>(c);
    }
    return false;
}

std::string Validator::judge(const std::string& schema, const std::string& file)
{
    std::string faults;
    if (ask(schema + '\t' + file + '\n'))
        for (std::string line; readLine(line); faults += line + '\n')
            if (line.empty())
                return faults;
    ADD_FAILURE() << "the validator stopped before it had checked " << file << " by " << schema;
    return faults;
}

} // namespace

std::string faultsBySchema(const std::string& schema, const std::vector<std::string>& files)
{
    static Validator validator;
    std::string faults;
    for (const std::string& file : files)
        faults += validator.judge(std::string(VX_DOCS) + "/" + schema, file);
    return faults;
}

} // namespace vxtest
