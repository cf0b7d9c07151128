#ifndef UPDATEDIALOG_H
#define UPDATEDIALOG_H

#include "orbdialog.h"

/// Firmware update of an accessory: asks, shows progress, shows the outcome. Buttons: `btnOk` (update, try
/// again), `btnCancel` (not now, or close).
///
/// Whoever feeds the accessory sets the dialog's property "everythingGiven" (bool) once the accessory was given
/// every part of the file, and takes it back when that turns out wrong: only then is a silence the end, and a
/// disk that is taken out no failure. A percentage tells nothing of it: the accessory asks in any order.
class ORB_EXPORT UpdateDialog : public OrbDialog
{
    Q_OBJECT

public:
    explicit UpdateDialog(QWidget *parent = nullptr);
    ~UpdateDialog() override;

    /// Shows the dialog with its question. \a kind: 1 a decoder's firmware was found on a disk; others ask
    /// with a general text.
    void showUpdateDlg(int kind);

    /// Progress, 0 to 100 %, clamped. After a silence of some seconds the update has ended, or has stalled: the
    /// user may then close the dialog or try again.
    void updatePercent(int percent);

    /// The update failed; \a code is shown with the message. The dialog can then be closed, and one that had
    /// begun tried again. The end of one that was given everything; never shows a hidden dialog.
    void setUpdateFailed(int code);

Q_SIGNALS:
    /// The user wants the update.
    void acceptUpdate();

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onAccepted();
    void onSilence();

private:
    Q_DISABLE_COPY(UpdateDialog)
    class Private;
    Private *d;
};

#endif // UPDATEDIALOG_H
