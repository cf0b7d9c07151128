/* Loaded into each armhf program under qemu-user, for what that cannot do.
 *
 * qemu hands a program that is started to the machine's kernel, which knows no armhf: such a program is started by way
 * of the emulator again, and any other as it is. Descriptors of processes work by half, waiting for them without making
 * them; Qt then takes -1 for its child, and in the end would kill all that -1 stands for, which is every process. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <elf.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

static int (*realExecve)(const char *, char *const[], char *const[]);
static int (*realKill)(pid_t, int);
static long (*realSyscall)(long, ...);
static char emulator[PATH_MAX];

static void find(void *function, const char *name)
{
    void *const found = dlsym(RTLD_NEXT, name);
    memcpy(function, &found, sizeof found);
}

__attribute__((constructor)) static void atStart(void)
{
    const char *const path = getenv("CANBUS_EMULATOR");
    find(&realExecve, "execve");
    find(&realKill, "kill");
    find(&realSyscall, "syscall");
    strncpy(emulator, path ? path : "", sizeof emulator - 1);
    unsetenv("LD_PRELOAD"); /* the machine's own programs cannot load this */
}

static int isForeign(const char *file)
{
    Elf32_Ehdr header;
    const int descriptor = open(file, O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return 0;
    }
    const ssize_t size = read(descriptor, &header, sizeof header);
    close(descriptor);
    return size == (ssize_t)sizeof header && memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
           header.e_machine == EM_ARM;
}

int execve(const char *file, char *const arguments[], char *const environment[])
{
    if (!isForeign(file)) {
        return realExecve(file, arguments, environment);
    }
    int count = 1;
    while (arguments[count]) {
        ++count;
    }
    char *emulated[count + 2]; /* no heap: this may be a child that shares it with its parent */
    emulated[0] = emulator;
    emulated[1] = (char *)file; /* in place of its name, which qemu takes from the file */
    for (int i = 1; i <= count; ++i) {
        emulated[i + 1] = arguments[i]; /* and the end */
    }
    return realExecve(emulator, emulated, environment);
}

int execv(const char *file, char *const arguments[])
{
    return execve(file, arguments, environ);
}

/* Whoever asks whether processes have descriptors hears no, and uses process numbers. */
long syscall(long number, ...)
{
    long values[6];
    va_list list;
    va_start(list, number);
    for (int i = 0; i < 6; ++i) {
        values[i] = va_arg(list, long);
    }
    va_end(list);
    if (number == SYS_waitid && values[0] == P_PIDFD) {
        errno = EINVAL;
        return -1;
    }
    return realSyscall(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}

int kill(pid_t process, int signal)
{
    if (process == -1) {
        abort(); /* no test means every process of this machine */
    }
    return realKill(process, signal);
}
