#include "boxtools.h"

#include "boxcatalog.h"

namespace {

QByteArray inHex(const BoxPackage &package)
{
    return (QByteArray(1, char(package.command)) + package.data).toHex(' ');
}

} // namespace

std::unique_ptr<DecoderBox> makeBox(int type)
{
    QString error;
    std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    if (!box) {
        qFatal("%s", qPrintable(error));
    }
    return box;
}

void change(DecoderBox *box, const QString &changes)
{
    const QStringList parts = changes.split(';');
    for (const QString &part : parts) {
        const QString text = part.trimmed();
        QString error;
        if (!text.isEmpty() && !box->car()->setValue(text.section(' ', 0, 0), text.section(' ', 1), &error)) {
            qFatal("%s", qPrintable(error));
        }
    }
}

QByteArray reportLike(const DecoderBox &box, const QByteArray &package)
{
    QByteArray found;
    for (int i = 0; i < box.speaker()->reports().size() && found != package; ++i) {
        const QByteArray sent = inHex(box.speaker()->reportPackage(i));
        if (sent.left(2) == package.left(2) && (found.isEmpty() || sent.left(5) == package.left(5))) {
            found = sent;
        }
    }
    return found;
}

QByteArray keyData(const DecoderBox &box, const QString &key, BoxSpeaker::KeyState state)
{
    QByteArray result;
    const BoxKey *found = box.speaker()->findKey(key);
    if (!found) {
        return "no such key";
    }
    for (const BoxPackage &package : box.speaker()->keyPackages(*found, state)) {
        result += inHex(package);
    }
    return result;
}
