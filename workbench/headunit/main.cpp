#include "command.h"
#include "unitrun.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

// A standard stream that was closed must not become another file's number: it reads as empty and swallows.
void keepStandardStreams()
{
    int descriptor = 0;
    do {
        descriptor = ::open("/dev/null", O_RDWR);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

} // namespace

int main(int argc, char *argv[])
{
    keepStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const Command *command = Command::find(arguments.value(1));
    return command ? command->run(arguments.mid(2)) : runUnit(arguments);
}
