// libFuzzer: firmware updates with any behaviour of box and disk: drives of the box that takes firmware.

#include "linkdrive.h"
#include "memoryline.h"

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    LinkDrive::start(argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    LinkDrive::playUpdate(QByteArray(reinterpret_cast<const char *>(bytes), int(size)));
    return 0;
}

// What replaymain.cpp compares.
extern "C" unsigned int fuzzStory()
{
    return MemoryLine::instance().story;
}
