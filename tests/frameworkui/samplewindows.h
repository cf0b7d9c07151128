#ifndef SAMPLEWINDOWS_H
#define SAMPLEWINDOWS_H

#include "orbdialog.h"
#include "orbmainwindow.h"

#include <QTimer>

#include <functional>

/// Notes the hooks that the framework calls.
class HookedWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    explicit HookedWindow(unsigned int appId = 769, QWidget *parent = nullptr) : OrbMainWindow(appId, parent)
    {}

    std::function<void(const QString &)> onHook;
    bool deleteOnHome = false;
    bool hideOnBack = false;

protected:
    void onLoadUiSkin() override { note("load"); }
    void onVisibleChange(bool visible) override { note(visible ? "visible" : "hidden"); }
    void onBackEvent() override
    {
        note("back");
        if (hideOnBack) {
            hide();
        }
    }
    void onHomeEvent() override
    {
        note("home");
        if (deleteOnHome) {
            deleteLater();
        }
    }

private:
    void note(const QString &hook)
    {
        if (onHook) {
            onHook(hook);
        }
    }
};

class PlainDialog : public OrbDialog
{
    Q_OBJECT

public:
    enum Kind { Overlay, Modal };

    explicit PlainDialog(Kind kind, QWidget *parent = nullptr) : OrbDialog(parent)
    {
        setModal(kind == Modal);
        resize(300, 200);
    }
};

/// Runs \a inside while \a dialog is open, and gives what exec() then returned.
inline int execWhile(OrbDialog *dialog, const std::function<void()> &inside)
{
    QTimer::singleShot(0, dialog, inside);
    return dialog->exec();
}

#endif // SAMPLEWINDOWS_H
