#include "goldenpictures.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QPainter>

#include <array>

namespace {

const int NarrowStep = 4;
const int Step = 16;
const int WideStep = 28;
const int DarkLevels = 64;
const int Noise = 4;        // levels: antialiasing differs a little from processor to processor
const int Margin = 40;      // pixels around a difference that its sheet shows
const int MostTiles = 3;    // of one sheet
const int LabelHeight = 28; // above a picture of a sheet
const int Gap = 8;
const QRgb Marked = 0xFFFF00FF;

using Levels = std::array<quint8, 256>;

// Of many steps dark ones, the grounds of all screens, lie closer.
Levels levelsOf(GoldenPictures::Steps steps)
{
    Levels levels;
    for (int i = 0; i < 256; ++i) {
        const int step = steps == GoldenPictures::FewSteps ? WideStep : i < DarkLevels ? NarrowStep : Step;
        levels[size_t(i)] = quint8(qMin(255, (i + step / 2) / step * step));
    }
    return levels;
}

struct Difference
{
    GoldenPictures::Tile tile;
    QImage expected;
    QRect place; // all of it lies in here
};

bool isAlike(QRgb a, QRgb b, int tolerance)
{
    const auto isNear = [tolerance](int one, int other) {
        return uint(one - other + tolerance) <= uint(2 * tolerance);
    };
    return isNear(qRed(a), qRed(b)) && isNear(qGreen(a), qGreen(b)) && isNear(qBlue(a), qBlue(b));
}

// \a place with its surroundings, so that one sees what it belongs to.
QRect shownPart(const Difference &difference)
{
    return difference.place.adjusted(-Margin, -Margin, Margin, Margin) & difference.tile.picture.rect();
}

QImage markedPicture(const Difference &difference, GoldenPictures::Steps steps)
{
    QImage marked = difference.tile.picture.convertToFormat(QImage::Format_Grayscale8)
                        .convertToFormat(QImage::Format_RGB32);
    const QRect area = difference.place;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (!isAlike(difference.expected.pixel(x, y), difference.tile.picture.pixel(x, y),
                         GoldenPictures::tolerance(steps))) {
                marked.setPixel(x, y, Marked);
            }
        }
    }
    return marked;
}

// Expected, got and difference of each tile side by side.
QImage sheetOf(const QVector<Difference> &differences, GoldenPictures::Steps steps)
{
    QSize size(0, 0);
    for (const Difference &difference : differences) {
        const QSize part = shownPart(difference).size();
        size = QSize(qMax(size.width(), 3 * qMax(part.width(), 200) + 4 * Gap),
                     size.height() + part.height() + LabelHeight + Gap);
    }
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    int y = 0;
    for (const Difference &difference : differences) {
        const QRect part = shownPart(difference);
        const QImage pictures[] = {difference.expected.copy(part), difference.tile.picture.copy(part),
                                   markedPicture(difference, steps).copy(part)};
        const char *const labels[] = {"expected", "got", "difference"};
        for (int column = 0; column < 3; ++column) {
            const int x = Gap + column * (qMax(part.width(), 200) + Gap);
            painter.drawText(x, y, 200, LabelHeight, Qt::AlignVCenter,
                             difference.tile.name + ": " + labels[column]);
            painter.drawImage(x, y + LabelHeight, pictures[column]);
        }
        y += part.height() + LabelHeight + Gap;
    }
    return sheet;
}

QSize stripSize(const QVector<GoldenPictures::Tile> &tiles)
{
    QSize size(0, 0);
    for (const GoldenPictures::Tile &tile : tiles) {
        size = QSize(size.width() + tile.picture.width(), qMax(size.height(), tile.picture.height()));
    }
    return size;
}

QImage sideBySide(const QVector<GoldenPictures::Tile> &tiles)
{
    QImage strip(stripSize(tiles), QImage::Format_RGB32);
    strip.fill(Qt::black);
    QPainter painter(&strip);
    int x = 0;
    for (const GoldenPictures::Tile &tile : tiles) {
        painter.drawImage(x, 0, tile.picture);
        x += tile.picture.width();
    }
    return strip;
}

QVector<Difference> differencesTo(const QImage &strip, const QVector<GoldenPictures::Tile> &tiles,
                                  GoldenPictures::Steps steps)
{
    QVector<Difference> result;
    int x = 0;
    for (const GoldenPictures::Tile &tile : tiles) {
        Difference difference{tile, strip.copy(x, 0, tile.picture.width(), tile.picture.height()), QRect()};
        difference.place = GoldenPictures::difference(difference.expected, tile.picture, steps);
        if (!difference.place.isNull()) {
            result << difference;
        }
        x += tile.picture.width();
    }
    return result;
}

QString report(const QString &path, const QVector<Difference> &differences, const QString &folder,
               GoldenPictures::Steps steps)
{
    QStringList lines{path + (QFileInfo::exists(path) ? " is another picture" : " is not there") +
                      " (ORB_REWRITE_GOLDEN=1 writes it anew)"};
    for (const Difference &difference : differences) {
        const QRect &place = difference.place;
        lines << QString("%1: %2x%3 pixels at %4,%5")
                     .arg(difference.tile.name)
                     .arg(place.width())
                     .arg(place.height())
                     .arg(place.x())
                     .arg(place.y());
    }
    if (differences.isEmpty()) {
        return lines.join('\n') + ": it is larger";
    }
    const QString sheet = QDir(folder).filePath(QFileInfo(path).fileName());
    const bool isSaved = QDir().mkpath(folder) && sheetOf(differences.mid(0, MostTiles), steps).save(sheet);
    lines << (isSaved ? "expected, got and difference: " + sheet : sheet + " could not be written");
    return lines.join('\n');
}

} // namespace

QImage GoldenPictures::reduced(const QImage &picture, Steps steps)
{
    const Levels levels = levelsOf(steps);
    QImage exact = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> places;
    QVector<QRgb> colours;
    QImage result(exact.size(), QImage::Format_Indexed8);
    for (int y = 0; y < exact.height(); ++y) {
        QRgb *const line = reinterpret_cast<QRgb *>(exact.scanLine(y));
        uchar *const indexes = result.scanLine(y);
        QRgb last = 0;
        int index = 0;
        for (int x = 0; x < exact.width(); ++x) {
            const QRgb pixel = line[x];
            line[x] = qRgb(levels[size_t(qRed(pixel))], levels[size_t(qGreen(pixel))],
                           levels[size_t(qBlue(pixel))]);
            if (line[x] != last) {
                last = line[x];
                const auto known = places.constFind(last);
                index = known != places.constEnd() ? *known : colours.size();
                if (known == places.constEnd()) {
                    places.insert(last, index);
                    colours << last;
                }
            }
            indexes[x] = uchar(index);
        }
    }
    result.setColorTable(colours.mid(0, 256));
    return colours.size() <= 256 ? result : exact;
}

int GoldenPictures::tolerance(Steps steps)
{
    return (steps == FewSteps ? WideStep : Step) / 2 + Noise;
}

QRect GoldenPictures::difference(const QImage &expected, const QImage &got, Steps steps)
{
    const QImage wanted = expected.convertToFormat(QImage::Format_RGB32);
    const QImage found = got.convertToFormat(QImage::Format_RGB32);
    if (wanted.size() != found.size()) {
        return found.rect();
    }
    const int most = tolerance(steps);
    QRect place;
    for (int y = 0; y < found.height(); ++y) {
        const QRgb *const a = reinterpret_cast<const QRgb *>(wanted.constScanLine(y));
        const QRgb *const b = reinterpret_cast<const QRgb *>(found.constScanLine(y));
        int first = found.width();
        int last = -1;
        for (int x = 0; x < found.width(); ++x) {
            if (!isAlike(a[x], b[x], most)) {
                first = qMin(first, x);
                last = x;
            }
        }
        if (last >= 0) {
            place |= QRect(QPoint(first, y), QPoint(last, y));
        }
    }
    return place;
}

QString GoldenPictures::compare(const QString &path, const QVector<Tile> &tiles, Steps steps,
                                const QString &folder)
{
    const QImage strip(path);
    const QVector<Difference> differences = differencesTo(strip, tiles, steps);
    if (differences.isEmpty() && strip.size() == stripSize(tiles)) {
        return QString();
    }
    if (qEnvironmentVariableIsSet("ORB_REWRITE_GOLDEN")) {
        const bool isWritten =
            QDir().mkpath(QFileInfo(path).path()) && reduced(sideBySide(tiles), steps).save(path, "PNG", 0);
        return isWritten ? QString() : path + " could not be written";
    }
    return report(path, differences, folder, steps);
}
