#ifndef SCREENBENCH_H
#define SCREENBENCH_H

#include "goldenpictures.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

/// A row of the table of screens: tests/screens/tst_screens.cpp draws each in every language and size, and
/// docs/screens.md shows it.
struct Scene
{
    /// Has a widget in the picture: of one on the unit's screen what lies around it as well.
    using Shot = std::function<void(QWidget *shown)>;

    QString name;    ///< of its picture's file
    QString caption; ///< what the manual says of it
    /// Builds it in the unit's language and calls \a shot while it is to be seen. Several shots are cut out and stand
    /// side by side.
    std::function<void(const Shot &shot)> draw;
};

/// A scene of one widget that \a make builds and shows.
Scene sceneOf(const QString &name, const QString &caption,
              const std::function<std::unique_ptr<QWidget>()> &make);

/// Has the whole of a list in \a window in the picture: page by page, when it is longer than one.
void shootList(QWidget *window, const Scene::Shot &shot);

/// Lets \a ms of virtual time pass in an event loop. QTest::qWait() would sleep in between, past what is on the line.
void passTime(int ms);

/// A unit with a screen of \a size and a language, while it lives, and what is drawn on it.
class ScreenBench
{
public:
    /// The languages of the pictures, English first.
    static QStringList languages();

    ScreenBench(const QSize &size, const QString &language);
    ~ScreenBench();

    void draw(const Scene &scene);

    /// What is wrong with what was drawn: texts that are cut or in another language, pictures that are not to be seen.
    const QStringList &faults() const { return m_faults; }
    QImage picture() const;

private:
    void shoot(QWidget *shown);
    QStringList faultsOf(const QWidget *shown) const;

    struct Private;
    std::unique_ptr<Private> d;
    QStringList m_faults;
};

#endif // SCREENBENCH_H
