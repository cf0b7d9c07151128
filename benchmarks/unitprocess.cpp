#include "unitprocess.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

UnitProcess::UnitProcess(const std::string &program)
{
    QString error;
    if (!m_terminal.open(&error) || !m_terminal.holdLine()) { // the unit is not there yet
        throw std::runtime_error("no serial line: " + error.toStdString());
    }
    const std::string port = m_terminal.devicePath().toStdString();
    const char *const arguments[] = {program.c_str(), "--headless", "--can-bus-type", "9",
                                     "--port",        port.c_str(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    m_started = now();
    const int failed =
        posix_spawn(&m_pid, program.c_str(), &files, nullptr, const_cast<char *const *>(arguments), environ);
    posix_spawn_file_actions_destroy(&files);
    if (failed) {
        throw std::runtime_error("cannot start " + program);
    }
}

UnitProcess::~UnitProcess()
{
    kill(m_pid, SIGTERM);
    waitpid(m_pid, nullptr, 0);
}

double UnitProcess::waitForByte(unsigned char *byte, double timeout)
{
    const double begin = now();
    pollfd ready = {m_terminal.farEnd(), POLLIN, 0};
    if (poll(&ready, 1, int(timeout * 1000)) != 1 || read(m_terminal.farEnd(), byte, 1) != 1) {
        return -1;
    }
    return now() - begin;
}

void UnitProcess::drain(double quiet)
{
    unsigned char byte;
    while (waitForByte(&byte, quiet) >= 0) {
    }
}

void UnitProcess::send(const std::string &bytes)
{
    if (write(m_terminal.farEnd(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
        throw std::runtime_error("the line is full");
    }
}

double UnitProcess::sinceStart() const
{
    return now() - m_started;
}

double UnitProcess::processorTime() const
{
    std::ifstream file("/proc/" + std::to_string(m_pid) + "/stat");
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::istringstream fields(text.substr(text.rfind(')') + 2));
    std::string skipped;
    for (int i = 0; i < 11; ++i) {
        fields >> skipped;
    }
    double user = 0;
    double system = 0;
    fields >> user >> system;
    return (user + system) / double(sysconf(_SC_CLK_TCK));
}

long UnitProcess::residentMemory() const
{
    std::ifstream file("/proc/" + std::to_string(m_pid) + "/status");
    std::string line;
    while (std::getline(file, line)) {
        if (line.rfind("VmRSS:", 0) == 0) {
            return atol(line.c_str() + 6);
        }
    }
    return -1;
}
