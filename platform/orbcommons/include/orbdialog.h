#ifndef ORBDIALOG_H
#define ORBDIALOG_H

#include "orbglobal.h"

#include <QDialog>

/// Base of every dialog on the unit's screen. It is drawn inside the screen: an overlay lies over the foot of
/// the window area and leaves the rest usable; a modal dialog (exec(), setModal) wants an answer: it stands in
/// the middle, and what is behind it is dimmed and takes no touches until the dialog is gone.
class ORB_EXPORT OrbDialog : public QDialog
{
    Q_OBJECT

public:
    /// The dialog is put on the unit's screen when it becomes visible and taken off it, hidden, when the
    /// screen goes. It stays owned by whoever built it; one that was built with a parent is deleted after that.
    explicit OrbDialog(QWidget *parent = nullptr);
    ~OrbDialog() override;

public Q_SLOTS:
    /// Showing brings the dialog to the front of its kind: overlays lie over windows, modal ones over both.
    /// exec(), open() and show() all come through here.
    void setVisible(bool visible) override;

    void done(int result) override;
    void accept() override;
    void reject() override;

    /// What the unit's Back key does to the dialog in front: here reject().
    virtual void back();

private:
    Q_DISABLE_COPY(OrbDialog)
};

#endif // ORBDIALOG_H
