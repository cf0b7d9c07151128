#ifndef WINDOWSTACK_H
#define WINDOWSTACK_H

#include <QList>
#include <QObject>
#include <QWidget>

/// Every window and dialog of the framework that exists, and which of them lies on top. Each adds itself when
/// it is built and removes itself when it goes; the pointers are never followed after that. A window that
/// was not added is ignored by every function. GUI thread only.
class WindowStack : public QObject
{
    Q_OBJECT

public:
    enum Kind { MainWindow, OverlayDialog, ChoiceDialog };

    /// Lives as long as OrbHost.
    static WindowStack *instance();

    explicit WindowStack(QObject *parent = nullptr);

    /// \a appId: the application of a main window; 0 for none and for dialogs.
    void add(QWidget *window, Kind kind, unsigned int appId = 0);
    void remove(QWidget *window);

    /// \a window became visible: it is in front from now on.
    void shown(QWidget *window);
    void hidden(QWidget *window);

    /// Brings \a window to the front without changing its visibility.
    void raise(QWidget *window);

    /// The unit's window area was set, replaced or taken away.
    void areaChanged();

    /// In the order in which they were added.
    QList<QWidget *> all() const;

    /// The topmost visible one, or null.
    QWidget *front(bool ignoreOverlays) const;

    /// Application of the topmost visible main window; 0 when there is none.
    unsigned int frontAppId() const;

Q_SIGNALS:
    void changed();

private:
    struct Entry
    {
        QWidget *window;
        Kind kind;
        unsigned int appId;
    };

    int indexInOrder(QWidget *window) const;

    QList<QWidget *> m_all;
    QList<Entry> m_order; ///< bottom to top
};

#endif // WINDOWSTACK_H
