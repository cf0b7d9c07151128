#ifndef SCREENTAP_H
#define SCREENTAP_H

#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

/// What a finger can tap in the plug-in's windows.
namespace ScreenTap {

/// A button, or a row of a list.
struct Target
{
    QPointer<QWidget> widget; ///< goes with its window
    int row = -1;             ///< of a list
    QString name;             ///< what stands on it, else the name of its widget

    /// Taps it, wherever its window lies in the stack. Does nothing when it is gone. Returns when what the tap opens
    /// is closed again.
    void tap() const;
};

/// All of \a window that can be tapped, in the order in which it was built, but for its title bar.
QVector<Target> targets(const QWidget *window);

/// The dialog that waits for an answer; null for none.
QWidget *openDialog();

} // namespace ScreenTap

#endif // SCREENTAP_H
