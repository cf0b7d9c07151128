#ifndef GOLDENPICTURES_H
#define GOLDENPICTURES_H

#include <QImage>
#include <QString>
#include <QVector>

/// Pictures in the tree that screens are compared with. A file holds one screen in several languages side by side, in
/// few colours: that is a third of the size of single files, since deflate finds in each line what all languages share.
namespace GoldenPictures {

/// The steps of red, green and blue that a file keeps.
enum Steps { FewSteps, ManySteps };

struct Tile
{
    QString name; ///< of the language
    QImage picture;
};

/// \a picture as a file keeps it.
QImage reduced(const QImage &picture, Steps steps);

/// How far apart, in levels of 255, a pixel may be from one that a file keeps in \a steps: what the steps cost, and a
/// few levels of a letter's soft edge.
int tolerance(Steps steps);

/// The pixels of \a got that are others than in \a expected, or lie outside of it; null for none.
QRect difference(const QImage &expected, const QImage &got, Steps steps);

/// Compares \a tiles with the file \a path. Empty when they are the same, else what differs, with the path of a picture
/// in \a folder that shows it: expected, got, difference. With ORB_REWRITE_GOLDEN=1 in the environment a file that
/// differs is written anew instead.
QString compare(const QString &path, const QVector<Tile> &tiles, Steps steps, const QString &folder);

} // namespace GoldenPictures

#endif // GOLDENPICTURES_H
