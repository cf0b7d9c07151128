#ifndef LOOKS_H
#define LOOKS_H

#include <QWidget>

#include <functional>
#include <memory>

/// Draws screens on both screen sizes and in every language, and checks that each text has the room that it
/// needs and is in that language. With ORB_SCREENSHOTS=FOLDER the pictures are kept there.
namespace Looks {

struct Scene
{
    const char *name;
    std::function<std::unique_ptr<QWidget>()> make; ///< builds and shows it, in the unit's language
};

/// The table of a test function: each scene in every size and language.
void addRows(const QList<Scene> &scenes);

/// The test function: draws the row's scene and fails where a text is cut.
void check(const QList<Scene> &scenes);

/// What is wrong with the texts of \a shown in the language of now: those that are cut, and, in the pseudo
/// language, those that are not translated.
QStringList faults(const QWidget *shown);

} // namespace Looks

#endif // LOOKS_H
