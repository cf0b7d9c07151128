#ifndef CARPICTURE_H
#define CARPICTURE_H

#include "vwtripdata.h"

#include <QFrame>
#include <QPixmap>
#include <QWidget>

/// The mark over one tyre. It is drawn here, since a style sheet draws no round corners where the frame is
/// narrower than they are wide; the style sheet tells no more than its state.
class TyreMark : public QFrame
{
    Q_OBJECT

public:
    explicit TyreMark(QWidget *parent = nullptr);

    void setMarked(bool marked);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_marked;
};

/// The car seen from above, as large as fits, with a frame over each tyre. The frames are children of the
/// picture and stay where the tyres are when it is resized.
class CarPicture : public QWidget
{
    Q_OBJECT

public:
    explicit CarPicture(QWidget *parent = nullptr);

    /// \a frame lies over \a tyre from now on.
    void setTyreFrame(Vw::Tyre tyre, QWidget *frame);

    /// Where the picture is drawn, in pixels of this widget.
    QRect pictureRect() const;

    /// Size of the frame over one tyre.
    QSize tyreFrameSize() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeFrames();

    QPixmap m_car;
    QWidget *m_frames[Vw::TyreCount];
};

#endif // CARPICTURE_H
