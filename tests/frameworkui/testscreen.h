#ifndef TESTSCREEN_H
#define TESTSCREEN_H

#include <QWidget>

/// A unit's screen for a test: a status strip of 48 pixels, the window area below it. Registered with the
/// framework while it lives.
class TestScreen : public QWidget
{
public:
    explicit TestScreen(const QSize &size = QSize(1024, 600));
    ~TestScreen() override;

    QWidget *area() const { return m_area; }

    /// A finger at a place of \a widget: the events go to whatever lies on top there.
    static void press(QWidget *widget, const QPoint &place);
    static void drag(QWidget *widget, const QPoint &from, const QPoint &to);
    static void tap(QWidget *widget, const QPoint &place);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *m_area;
};

#endif // TESTSCREEN_H
