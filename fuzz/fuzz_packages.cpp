// libFuzzer: the first byte chooses the adapter, the rest is what the box says, once as packages with good
// checksums and once as raw bytes.

#include "hostileline.h"

#include "adapterfactory.h"
#include "orbapplication.h"

#include <map>

// Application and adapters live until the process ends, as they do in a head unit; nothing is destroyed at exit.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static OrbApplication *const application = new OrbApplication(*argc, *argv);
    Q_UNUSED(application)
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size < 1) {
        return 0;
    }
    const auto types = AdapterFactory::types();
    const CanBusType type = types.at(bytes[0] % int(types.size()));
    static std::map<CanBusType, CanBusAdapter *> adapters;
    CanBusAdapter *&adapter = adapters[type];
    if (!adapter) {
        adapter = HostileLine::adapter(type).release();
    }
    const QByteArray line(reinterpret_cast<const char *>(bytes) + 1, int(size) - 1);
    HostileLine::decode(adapter, type, line);
    HostileLine::receive(adapter, line, 38);
    QCoreApplication::processEvents();
    return 0;
}
