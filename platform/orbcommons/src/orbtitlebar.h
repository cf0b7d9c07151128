#ifndef ORBTITLEBAR_H
#define ORBTITLEBAR_H

#include <QWidget>

class QLabel;

/// The bar on top of every application window: back button (`btnBack`), title, home button (`btnHome`).
class OrbTitleBar : public QWidget
{
    Q_OBJECT

public:
    /// The back button calls the slot back() of \a window, which owns the bar; the home button sends every window
    /// of the unit's screen home.
    explicit OrbTitleBar(QWidget *window);

    /// A title that is too long ends in an ellipsis.
    void setTitle(const QString &title);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void elideTitle();

    QString m_title;
    QLabel *m_label;
};

#endif // ORBTITLEBAR_H
