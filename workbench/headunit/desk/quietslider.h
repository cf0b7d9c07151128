#ifndef QUIETSLIDER_H
#define QUIETSLIDER_H

#include <QComboBox>
#include <QSlider>

/// A slider that leaves the mouse wheel to the page that it lies on, so that scrolling the page changes
/// nothing, and that jumps to where its groove is clicked.
class QuietSlider : public QSlider
{
    Q_OBJECT

public:
    explicit QuietSlider(Qt::Orientation orientation, QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// A list to choose from that leaves the mouse wheel to its page.
class QuietComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent *event) override;
};

#endif // QUIETSLIDER_H
