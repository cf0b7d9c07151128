#ifndef ORBMAINWINDOW_H
#define ORBMAINWINDOW_H

#include "orbglobal.h"

#include <QMainWindow>

/// Base of every application window. It fills the window area of the unit's screen and bears the framework's
/// title bar: a back button (`btnBack`), the window title, a home button (`btnHome`). A subclass sets its
/// central widget (a form's setupUi(this) does) and overrides the hooks that it needs.
///
/// While it is visible the window is a child of the unit's screen, and when the screen goes it is taken off
/// it first, hidden. It belongs to whoever built it; one that was built with a parent is deleted after that.
class ORB_EXPORT OrbMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a appId: the application that the window belongs to, 0 for none. Without \a parent the window is put
    /// on the unit's screen the first time that it becomes visible.
    explicit OrbMainWindow(unsigned int appId = 0, QWidget *parent = nullptr);
    ~OrbMainWindow() override;

    unsigned int appId() const;

public Q_SLOTS:
    /// Showing brings the window to the front and makes it the application in front. The first call with true
    /// runs onLoadUiSkin; a change of visibility runs onVisibleChange.
    void setVisible(bool visible) override;

    /// What the title bar's buttons and the unit's Back and Home keys do. Back: onBackEvent, then this window
    /// is hidden and the one below is in front. Home: onHomeEvent, then the window is hidden; the framework
    /// calls it for every window on the screen. A hook may delete the window with deleteLater.
    void back();
    void home();

protected:
    /// Called once, before the window is shown for the first time: the place to build what it shows.
    virtual void onLoadUiSkin();
    virtual void onVisibleChange(bool visible);
    virtual void onBackEvent();
    virtual void onHomeEvent();

    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(OrbMainWindow)
    class Private;
    Private *d;
};

#endif // ORBMAINWINDOW_H
