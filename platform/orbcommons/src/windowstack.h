#ifndef WINDOWSTACK_H
#define WINDOWSTACK_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// Every window and dialog of the framework that exists, where each lies on the unit's screen and which of
/// them is on top: windows below overlays below choices. Each adds itself when it is built and removes itself
/// when it goes; the pointers are never followed after that. A window that was not added is ignored by every
/// function. GUI thread only.
class WindowStack : public QObject
{
    Q_OBJECT

public:
    enum Kind { MainWindow, OverlayDialog, ModalDialog };

    /// Lives as long as OrbHost.
    static WindowStack *instance();

    explicit WindowStack(QObject *parent = nullptr);

    /// \a appId: the application of a main window; 0 for none and for dialogs.
    void add(QWidget *window, Kind kind, unsigned int appId = 0);
    void setKind(QWidget *window, Kind kind);
    void remove(QWidget *window);

    /// Reports a call of setVisible, but not one that the stack makes itself.
    void traceVisibility(QWidget *window, bool visible);

    /// \a window is about to become visible: puts it on the window area, in its place there. Without an area
    /// it stays a top-level window.
    void place(QWidget *window);

    /// \a window became visible: it is in front of its kind from now on.
    void shown(QWidget *window);
    void hidden(QWidget *window);

    /// The unit's window area was set, replaced or taken away.
    void areaChanged();

    /// In the order in which they were added.
    QList<QWidget *> all() const;

    /// The topmost visible one, or null.
    QWidget *front(bool ignoreOverlays) const;

    /// The topmost visible main window, whatever dialog lies over it; null when there is none.
    QWidget *frontMainWindow() const;

    /// Application of that window; 0 when there is none.
    unsigned int frontAppId() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Takes every window off the window area, hidden; each is its owner's alone again.
    void leaveArea();

    /// Calls OrbMainWindow::home() on every visible main window, from the lowest up.
    void goHome();

Q_SIGNALS:
    /// Others are visible than before, in another order, or one is gone.
    void changed();

private:
    struct Entry
    {
        QWidget *window;
        Kind kind;
        unsigned int appId;
    };

    int indexInOrder(const QObject *window) const;
    int topmost(Kind kind) const;
    void setGeometryOf(const Entry &entry);
    void setParentQuietly(QWidget *window, QWidget *parent);
    void restack();
    void tellChanges();

    QList<QWidget *> m_all;
    QList<Entry> m_order;       ///< bottom to top within each kind
    QList<QWidget *> m_visible; ///< as last told; only compared, since they may be gone
    QWidget *m_area;
    QPointer<QWidget> m_scrim;
    const QWidget *m_quiet; ///< whose setVisible is the stack's own doing
};

#endif // WINDOWSTACK_H
