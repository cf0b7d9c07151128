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

QByteArray reportData(const DecoderBox &box, const QString &meaning)
{
    const QVector<BoxReport> &reports = box.speaker()->reports();
    for (int i = 0; i < reports.size(); ++i) {
        if (reports.at(i).meaning == meaning) {
            return inHex(box.speaker()->reportPackage(i));
        }
    }
    return "no such report";
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
