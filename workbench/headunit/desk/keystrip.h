#ifndef KEYSTRIP_H
#define KEYSTRIP_H

#include <QTimer>
#include <QVector>
#include <QWidget>

class QBoxLayout;
class QToolButton;

/// The unit's own keys below its screen. A key that is held repeats every 200 ms until it is let go; one key
/// is held at a time. Units with a key set of their own have a second row with those raw codes.
class KeyStrip : public QWidget
{
    Q_OBJECT

public:
    enum Phase { Release = 0, Press = 1, Repeat = 2 };
    static constexpr int RepeatInterval = 200; ///< milliseconds

    struct Key
    {
        int code;
        int meaning; ///< the code of the key that it is; another one than its own makes it a raw key
    };

    /// \a keySet: number of the unit's key set, 1 or 2; any other has no raw keys.
    explicit KeyStrip(int keySet, QWidget *parent = nullptr);

Q_SIGNALS:
    /// \a phase: one of Phase.
    void keyUsed(int code, int phase);

protected:
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addKeys(const QVector<Key> &keys, QBoxLayout *row);
    void setTexts();
    void hold(int code);
    void letGo();

    struct Button
    {
        QToolButton *widget;
        Key key;
    };
    QVector<Button> m_buttons;
    QTimer m_repeatTimer;
    int m_heldCode = 0;
};

#endif // KEYSTRIP_H
