#ifndef SELECTDIALOG_H
#define SELECTDIALOG_H

#include "orbdialog.h"

#include <QScopedPointer>
#include <QString>
#include <QStringList>

class QButtonGroup;
class QLabel;
class QLayout;
class QPushButton;
class Ui_SelectDialog;

/// Lets the user change one setting: by check boxes, by stepping a number, or by reading and confirming a
/// text. The first mode that is set wins; later calls of a mode's function change nothing. Run it with
/// exec(): 1 for `btnOk`, 0 otherwise.
class SelectDialog : public OrbDialog
{
    Q_OBJECT

public:
    explicit SelectDialog(QWidget *parent = nullptr);
    ~SelectDialog() override;

    /// Sets the text of the title label `txtTitle`.
    void setWindowTitle(const QString &title);

    /// Puts \a layout, which the dialog then owns, into the content area. Ignored once there is one.
    void setContentLayout(QLayout *layout);

    /// Text mode: \a text, centred and wrapped.
    void setContentText(const QString &text);

    /// Check-box mode: one box per item, the boxes with \a checkedText (blanks around do not count) checked.
    /// \a exclusive: a choice among options, else several flags.
    void setCheckBoxListMode(const QStringList &items, const QString &checkedText, bool exclusive);
    /// Index of the checked item, the first one of several; -1 when none is or in another mode.
    int getCheckedIndex() const;

    /// Slider mode: a number between \a minimum and \a maximum, changed by \a step with `btnDec` and `btnInc`
    /// and shown with \a unit right behind it in `btnValue`. \a value is clamped; a \a maximum below
    /// \a minimum counts as equal to it.
    void setSliderMode(int minimum, int maximum, int step, int value, const QString &unit);
    /// The number, -1 in another mode.
    int getSliderValue() const { return m_value; }
    /// Number and unit, empty in another mode.
    QString getSliderValueText() const;

    /// Puts \a hint below the content in any mode; empty takes it away.
    void setHint(const QString &hint);

    /// The unit's language has changed: replaces the texts that the mode was given, which are the one content
    /// text, the items, or the one unit. Whatever is missing stays as it is.
    void retranslate(const QStringList &texts);

    /// For a dialog that only informs, or acts at once on a choice.
    void hideButtons();

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_btnOk_clicked();
    void on_btnCancel_clicked();
    void onSliderIncButtonClicked();
    void onSliderDecButtonClicked();

private:
    void addStepButton(QLayout *layout, const QString &text, const QString &name, const char *slot);
    void setValue(qint64 value);

    const QScopedPointer<Ui_SelectDialog> m_ui;
    QLayout *m_contentLayout;
    QButtonGroup *m_checkBoxGroup;
    QLabel *m_contentLabel;
    QPushButton *m_valueButton;
    int m_value;
    int m_minimum;
    int m_maximum;
    int m_step;
    QString m_unit;
};

#endif // SELECTDIALOG_H
