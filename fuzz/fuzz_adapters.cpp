// libFuzzer: the first byte chooses the adapter, the rest is what the box says, once as packages with good
// checksums and once as raw bytes.

#include "hostileline.h"

#include "orbapplication.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_adapters";
    static char *argv[] = {name, nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static OrbApplication app(argc, argv);
    Q_UNUSED(offscreen)
    if (size < 1)
        return 0;
    const CanBusType type = static_cast<CanBusType>(bytes[0] % 15 + 1);
    static std::unique_ptr<CanBusAdapter> adapters[16];
    if (!adapters[type])
        adapters[type] = HostileLine::adapter(type);
    const QByteArray line(reinterpret_cast<const char *>(bytes) + 1, int(size) - 1);
    HostileLine::decode(adapters[type].get(), type, line);
    HostileLine::receive(adapters[type].get(), line, 38);
    QCoreApplication::processEvents();
    return 0;
}
