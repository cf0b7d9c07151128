#include "keyplayer.h"

#include "keyredefadapter.h"
#include "orbhost.h"

QStringList KeyPlayer::play(KeyRedefAdapter *keys, const QByteArray &script)
{
    OrbHost *const host = OrbHost::instance();
    TraceRecorder trace;
    for (const QByteArray &step : script.split('|')) {
        const QByteArrayList words = step.simplified().split(' ');
        if (words.at(0) == "call") {
            host->setTag(0x10001, words.at(1).toULongLong(nullptr, 16));
        } else if (words.at(0) == "front") {
            host->setCurWindowAppId(words.at(1).toInt(nullptr, 16));
        } else {
            host->holdTickCount(words.at(0).toULongLong());
            keys->onKeyEvent(words.at(1).toUInt(nullptr, 16), words.at(2) != "r", words.at(2) == "h");
        }
    }
    host->setTag(0x10001, QVariant());
    host->setCurWindowAppId(-1);
    host->releaseTickCount();
    return trace.take();
}
