#include "probesheets.h"

#include "bitsheet.h"
#include "boxcatalog.h"
#include "carproperty.h"
#include "commandapplication.h"
#include "decoderbox.h"
#include "headunitprogram.h"
#include "probestart.h"
#include "supportmatrix.h"

#include "orbapplication.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSaveFile>
#include <QThread>

#include <cstdio>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

namespace {

bool writeFile(const QString &path, const QString &text, QString *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        *error = QString("%1 cannot be written: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

// A list in which nothing stands shows nothing, whatever its bits.
void fillLists(DecoderBox *box)
{
    for (const QString &name : box->speaker()->properties()) {
        const CarProperty *property = CarProperty::find(name);
        if (property->kind == CarProperty::NumberList) {
            box->car()->setValue(name, QString::number(property->minimum + 1));
        }
    }
}

bool writeSheet(const ProbeSheets::Order &order, int type, QString *error)
{
    DriveTraces drives;
    const BoxCatalog::Row &row = BoxCatalog::rows().at(type - 1);
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, error));
    if (!box || !drives.read(order.drives, row.car, error)) {
        return false;
    }
    const std::unique_ptr<OrbApplication> application = CommandApplication::makeUnit(error);
    if (!application) {
        return false;
    }
    ProbeUnit unit;
    const QString plugin = HeadUnitProgram::pluginPath(order.plugin);
    if (!unit.start(plugin, type, ProbeStart::greeting(*box->speaker()), error)) {
        return false;
    }
    fillLists(box.get());
    BitSheet sheet(&unit, type, box->speaker(), drives);
    if (!sheet.run(error) ||
        !writeFile(QDir(order.folder).filePath(QString("%1.md").arg(type)), sheet.text(), error)) {
        return false;
    }
    std::printf("%s: %d probes\n", row.className, unit.trialCount());
    return true;
}

// Waits for one child; whether it went well.
bool await(int *running)
{
    int status = 0;
    --*running;
    return ::wait(&status) > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

bool ProbeSheets::write(const Order &order, QString *error)
{
    if (!QDir(order.folder).exists()) {
        *error = QString("there is no folder %1").arg(order.folder);
        return false;
    }
    bool isWritten = true;
    int running = 0;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (!row.makeSpeaker || (order.type != 0 && row.type != order.type)) {
            continue;
        }
        if (running == QThread::idealThreadCount()) {
            isWritten = await(&running) && isWritten;
        }
        std::fflush(stdout);
        const pid_t child = ::fork();
        if (child == 0) {
            QString problem;
            const bool isFine = writeSheet(order, row.type, &problem);
            if (!isFine) {
                std::fprintf(stderr, "%s: %s\n", row.className, qPrintable(problem));
            }
            std::fflush(nullptr);
            ::_exit(isFine ? 0 : 1);
        }
        running += child > 0 ? 1 : 0;
        isWritten = isWritten && child > 0;
    }
    while (running > 0) {
        isWritten = await(&running) && isWritten;
    }
    if (!isWritten) {
        *error = "not every sheet could be written";
        return false;
    }
    return writeFile(QDir(order.folder).filePath("README.md"), SupportMatrix::text(order.folder), error);
}
