// libFuzzer: any file as a log. The first byte chooses whether a pattern is given, the rest is the file. What was read
// is written in every format, and what the bench's own format wrote reads as it was.

#include "hostilelog.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size > 0) {
        const QByteArray file(reinterpret_cast<const char *>(bytes) + 1, int(size) - 1);
        HostileLog::read(file, bytes[0] % 8 == 0);
    }
    return 0;
}
