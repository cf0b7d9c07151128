#ifndef UNITVIEW_H
#define UNITVIEW_H

#include <QGraphicsView>
#include <QTimer>

class UnitScreen;

/// The unit's screen as large as there is room for, between three quarters of its size and twice; it keeps its
/// proportions, and a touch on it is a touch on the screen. With the keyboard on it, Escape is the unit's back
/// key, the arrows and Return are its arrows and Enter; every other key is the widget's in front.
///
/// A box may say hundreds of packages a second, each with something to show: pictures follow one another no faster than
/// eyes take them in, but while a finger is on the screen.
class UnitView : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr qreal LeastScale = 0.75;
    static constexpr qreal GreatestScale = 2;

    /// Takes \a screen as its own.
    explicit UnitView(UnitScreen *screen, QWidget *parent = nullptr);

    /// Pixels of the display for one of the unit.
    qreal scale() const { return transform().m11(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// \a phase: one of HeadUnit::KeyPhase.
    void keyUsed(int code, int phase);

protected:
    bool eventFilter(QObject *screen, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void showChanges();

    UnitScreen *m_screen;
    QSize m_unitSize;
    QTimer m_rest;         ///< until the next picture may be painted
    bool m_isLate = false; ///< something waits for it
};

#endif // UNITVIEW_H
