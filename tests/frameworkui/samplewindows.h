#ifndef SAMPLEWINDOWS_H
#define SAMPLEWINDOWS_H

#include "orbdialog.h"
#include "orbmainwindow.h"

#include <QStringList>
#include <QTimer>

#include <functional>

/// Notes the hooks that the framework calls.
class HookedWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    explicit HookedWindow(unsigned int appId = 769, QWidget *parent = nullptr) : OrbMainWindow(appId, parent)
    {}

    QStringList hooks;
    bool deleteOnHome = false;
    bool hideOnBack = false;

protected:
    void onLoadUiSkin() override { hooks << "load"; }
    void onVisibleChange(bool visible) override { hooks << (visible ? "visible" : "hidden"); }
    void onBackEvent() override
    {
        hooks << "back";
        if (hideOnBack) {
            hide();
        }
    }
    void onHomeEvent() override
    {
        hooks << "home";
        if (deleteOnHome) {
            deleteLater();
        }
    }
};

class PlainDialog : public OrbDialog
{
    Q_OBJECT

public:
    explicit PlainDialog(int kind, QWidget *parent = nullptr) : OrbDialog(parent, kind) { resize(300, 200); }
};

typedef std::function<void(HookedWindow &, PlainDialog &)> Action;

/// Runs \a inside while \a dialog is open, and gives what exec() then returned.
inline int execWhile(OrbDialog *dialog, const std::function<void()> &inside)
{
    QTimer::singleShot(0, dialog, inside);
    return dialog->exec();
}

Q_DECLARE_METATYPE(Action)

#endif // SAMPLEWINDOWS_H
