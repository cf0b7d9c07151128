#ifndef BITGRID_H
#define BITGRID_H

#include <QProcess>
#include <QVector>
#include <QWidget>

class BitGridPicture;
class QLabel;

/// What each bit of a package does, as a grid: the program's own probe is asked, in a process of its own, and each
/// run of bits stands beside what it moves. A window.
class BitGrid : public QWidget
{
    Q_OBJECT

public:
    /// Bits that belong together, and what they move.
    struct Run
    {
        int byte;
        int high;
        int low;
        QStringList effects; ///< none: no effect by itself
        QString partner;     ///< the bit with which it has one, else empty
        bool dependsOnState;
    };

    /// \a program: of headunit.
    explicit BitGrid(const QString &program, QWidget *parent = nullptr);
    /// Ends a probe that runs.
    ~BitGrid() override;

public Q_SLOTS:
    /// Probes \a frame, a whole package of the box of CAN-bus type \a type, and shows itself. A probe that runs for
    /// another package is given up.
    void showPackage(int type, const QByteArray &frame);

Q_SIGNALS:
    /// The grid is there, or the sentence why it is not.
    void shown();

protected:
    void changeEvent(QEvent *event) override;

private:
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void setTexts();
    void say(const QString &sentence);

    QString m_program;
    QProcess *m_probe = nullptr;
    int m_type = 0;
    QByteArray m_frame;
    QLabel *m_title;
    QLabel *m_note;
    BitGridPicture *m_picture;
};

#endif // BITGRID_H
