#ifndef RAILBUTTON_H
#define RAILBUTTON_H

#include "fittedtext.h"

#include <QString>

/// A button of the rail at the screen's left edge. It draws a bar where it is checked, a badge where something
/// behind it wants the driver. One that leads nowhere says why instead of looking like a button.
class RailButton : public FittedButton
{
    Q_OBJECT

public:
    explicit RailButton(QWidget *parent = nullptr);

    void setBadge(bool badge);
    bool hasBadge() const { return m_badge; }

    /// \a reason: why the button leads nowhere; stands under its text in place of the icon.
    void setReason(const QString &reason);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawReason(QPainter *painter) const;

    bool m_badge;
    QString m_reason;
};

#endif // RAILBUTTON_H
