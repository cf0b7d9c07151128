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

    /// Progress, 0 to 100 %, clamped. 100 or the last packet leaves the bar standing.
    void updatePercent(int percent);

    /// The update failed; \a code is shown with the message. The dialog can then be closed.
    void setUpdateFailed(int code);

Q_SIGNALS:
    /// The user wants the update.
    void acceptUpdate();

protected:
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(UpdateDialog)
    class Private;
    Private *d;
};

#endif // UPDATEDIALOG_H
