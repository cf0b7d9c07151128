// libFuzzer: any text as a drive, an order, a script, settings, a filter, or the words behind a program. The first byte
// chooses which, the second the box.

#include "hostiletext.h"

#include "orbapplication.h"
#include "orbhost.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static OrbApplication *const application = new OrbApplication(*argc, *argv);
    Q_UNUSED(application)
    static QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.filePath("settings"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path())); // where filters are kept
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size >= 2) {
        const auto kind = static_cast<HostileText::Kind>(bytes[0] % HostileText::Kinds);
        HostileText::read(kind, bytes[1],
                          QByteArray(reinterpret_cast<const char *>(bytes) + 2, int(size) - 2));
    }
    return 0;
}
