#include "boxlibrary.h"

#include "decoderbox.h"

#include <QFileInfo>
#include <QLibrary>

DecoderBox *BoxLibrary::createBox(const QString &path, QObject *parent, QString *error)
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
    using CreateBoxSpeaker = BoxSpeaker *(*)(SimulatedCar *);
    const auto createBoxSpeaker = reinterpret_cast<CreateBoxSpeaker>(library.resolve("createBoxSpeaker"));
    if (!createBoxSpeaker) {
        *error = QString("%1 is no box library: it has no createBoxSpeaker").arg(path);
        return nullptr;
    }
    SimulatedCar *car = new SimulatedCar;
    return new DecoderBox(car, createBoxSpeaker(car), parent);
}
