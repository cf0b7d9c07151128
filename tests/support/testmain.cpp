#include "testmain.h"

namespace {

QtMessageHandler nextHandler = nullptr;
int broken = 0;

void watchMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.startsWith("Object::connect:") || text.startsWith("QObject::connect:")) {
        ++broken;
    }
    nextHandler(type, context, text);
}

} // namespace

void TestSupport::watchConnects()
{
    // Qt Test installs a handler of its own for each program; stay in front of it.
    const QtMessageHandler before = qInstallMessageHandler(watchMessage);
    if (before != watchMessage) {
        nextHandler = before;
    }
}

int TestSupport::brokenConnects()
{
    return broken;
}
