#include "boxtools.h"

#include "boxcatalog.h"

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
