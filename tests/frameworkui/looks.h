#ifndef LOOKS_H
#define LOOKS_H

#include <QWidget>

#include <functional>
#include <memory>

/// Draws screens on both screen sizes and in three languages, and checks that each text has the room that it
/// needs. With ORB_SCREENSHOTS=FOLDER the pictures are kept there.
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

} // namespace Looks

#endif // LOOKS_H
