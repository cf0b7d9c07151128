#include "boxlibrary.h"

#include <QFileInfo>
#include <QLibrary>

CreateBoxSpeakerFunction BoxLibrary::load(const QString &path, QString *error)
{
    if (!QFileInfo(path).isFile()) {
        *error = QString("there is no box library %1").arg(path);
        return nullptr;
    }
    // A bare name would be looked for in the system's folders.
    QLibrary library(QFileInfo(path).absoluteFilePath());
    if (!library.load()) {
        *error = QString("the box library does not load: %1").arg(library.errorString());
        return nullptr;
    }
    const auto create = reinterpret_cast<CreateBoxSpeakerFunction>(library.resolve("createBoxSpeaker"));
    if (!create) {
        *error = QString("%1 is no box library: it has no createBoxSpeaker").arg(path);
    }
    return create;
}
