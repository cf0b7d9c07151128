#ifndef UPDATEDIALOG_H
#define UPDATEDIALOG_H

#include "orbdialog.h"

/// Firmware update of an accessory: asks, shows progress, shows the outcome. Buttons: `btnOk` (update),
/// `btnCancel` (not now, or close).
class ORB_EXPORT UpdateDialog : public OrbDialog
{
    Q_OBJECT

public:
    explicit UpdateDialog(QWidget *parent = nullptr);
    ~UpdateDialog() override;

    /// Shows the dialog with its question. \a kind: 1 a decoder's firmware was found on a disk; others ask
    /// with a general text.
    void showUpdateDlg(int kind);

    /// Progress, 0 to 100 %, clamped. The end is 100, or a silence of some seconds near it, since the share
    /// of the last packet is seldom 100; after a silence before that the user may close the dialog.
    void updatePercent(int percent);

    /// The update failed; \a code is shown with the message. The dialog can then be closed, and one that had
    /// begun tried again. Ignored when the update has ended well; never shows a hidden dialog.
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
