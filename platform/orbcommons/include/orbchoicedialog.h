#ifndef ORBCHOICEDIALOG_H
#define ORBCHOICEDIALOG_H

#include "orbdialog.h"

#include <QStringList>

class QButtonGroup;

/// The framework's choice dialog: a title, one check box per text of which exactly one is chosen, and the
/// buttons `btnOk` and `btnCancel`.
class ORB_EXPORT OrbChoiceDialog : public OrbDialog
{
    Q_OBJECT

public:
    /// \a current: index of the text that is chosen at first; outside the list nothing is.
    OrbChoiceDialog(const QString &title, const QStringList &texts, int current, QWidget *parent = nullptr);

    /// Index of the chosen text, -1 when none is.
    int chosenIndex() const;

    /// Shows the dialog and returns the chosen index, or -1 when the user cancelled. Runs an event loop of
    /// its own, in which packages and keys go on.
    static int choose(const QString &title, const QStringList &texts, int current);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QButtonGroup *m_group;
};

#endif // ORBCHOICEDIALOG_H
