#ifndef LOOKS_H
#define LOOKS_H

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

/// Draws screens on both screen sizes and in three languages (with ORB_ALL_LANGUAGES=1 in all), and checks that each
/// text has the room that it needs and is in that language. With ORB_SCREENSHOTS=FOLDER the pictures are kept there.
namespace Looks {

struct Scene
{
    const char *name;
    std::function<std::unique_ptr<QWidget>()> make; ///< builds and shows it, in the unit's language
};

/// The table of a test function: each scene, or name of one, in every size and language.
void addRows(const QList<Scene> &scenes);
void addRows(const QStringList &names);

/// The test function: draws the row's scene and looks for faults.
void check(const QList<Scene> &scenes);

/// A unit with the row's screen and language, while it lives.
class Unit
{
public:
    Unit();
    ~Unit();

    /// What is wrong with \a shown: texts that are cut or in another language, pictures that are not to be seen.
    /// \a part: of its picture's name, behind that of the row.
    QStringList faults(const QWidget *shown, const QString &part = QString()) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Looks

#endif // LOOKS_H
