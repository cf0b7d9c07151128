#ifndef FINGERSCROLLAREA_H
#define FINGERSCROLLAREA_H

#include <QScrollArea>

/// A vertical scroll area that a finger drags, also where it comes down on a button: the button is then let
/// go unpressed.
class FingerScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes \a content, whose buttons are all there already.
    FingerScrollArea(QWidget *content, QWidget *parent);

    /// Room for the whole content; the layout gives less where there is less.
    QSize sizeHint() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_pressY;
    int m_lastY;
    bool m_dragging;
};

#endif // FINGERSCROLLAREA_H
