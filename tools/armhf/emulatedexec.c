/* Loaded into each armhf program under qemu-user, which hands a program that it starts to the machine's kernel; that
 * knows no armhf. So such a program is started by way of the emulator again, and any other as it is. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <elf.h>
#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

typedef int (*Execve)(const char *, char *const[], char *const[]);
static Execve realExecve;
static char emulator[PATH_MAX];

__attribute__((constructor)) static void atStart(void)
{
    void *const found = dlsym(RTLD_NEXT, "execve");
    const char *const path = getenv("CANBUS_EMULATOR");
    memcpy(&realExecve, &found, sizeof realExecve);
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
    return size == sizeof header && memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_machine == EM_ARM;
}

int execve(const char *file, char *const arguments[], char *const environment[])
{
    int count = 0;
    if (!isForeign(file)) {
        return realExecve(file, arguments, environment);
    }
    while (arguments[count]) {
        ++count;
    }
    const char *emulated[count + 3]; /* no heap: this may be a child that shares it with its parent */
    emulated[0] = emulator;
    emulated[1] = file;
    for (int i = 1; i <= count; ++i) {
        emulated[i + 1] = arguments[i];
    }
    emulated[count ? count + 1 : 2] = NULL;
    return realExecve(emulator, (char *const *)emulated, environment);
}

int execv(const char *file, char *const arguments[])
{
    return execve(file, arguments, environ);
}
