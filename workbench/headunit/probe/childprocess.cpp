#include "childprocess.h"

#include <sys/wait.h>
#include <unistd.h>

bool ChildProcess::run(const std::function<void(int)> &life, QByteArray *told, int *status)
{
    int ends[2];
    if (::pipe(ends) != 0) {
        return false;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        life(ends[1]);
        ::_exit(0);
    }
    ::close(ends[1]);
    *told = readAll(ends[0]);
    ::close(ends[0]);
    return child > 0 && ::waitpid(child, status, 0) == child;
}

QByteArray ChildProcess::readAll(int descriptor)
{
    QByteArray bytes;
    char part[16384];
    for (ssize_t count = 1; count > 0;) {
        count = ::read(descriptor, part, sizeof part);
        bytes.append(part, int(qMax(ssize_t(0), count)));
    }
    return bytes;
}

void ChildProcess::writeAll(int descriptor, const QByteArray &bytes)
{
    for (int written = 0; written < bytes.size();) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + written, size_t(bytes.size() - written));
        if (count <= 0) {
            ::_exit(1);
        }
        written += int(count);
    }
}
