#ifndef MEDIACARD_H
#define MEDIACARD_H

#include <QPixmap>
#include <QWidget>

class QToolButton;

/// What plays now, with buttons for the track before, pause and the next one.
class MediaCard : public QWidget
{
    Q_OBJECT

public:
    explicit MediaCard(QWidget *parent = nullptr);

    /// \a source: name of the source in front; \a icon: its picture. An empty \a title: it plays nothing.
    void setTrack(const QString &source, const QPixmap &icon, const QString &title, const QString &subtitle);
    void setPlaying(bool isPlaying);

Q_SIGNALS:
    /// A button was tapped: Qt's code of the media key that does the same.
    void keyTapped(int code);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QToolButton *addButton(const QString &icon, int code);

    QString m_source;
    QPixmap m_icon;
    QString m_title;
    QString m_subtitle;
    QToolButton *m_previous;
    QToolButton *m_pause;
    QToolButton *m_next;
};

#endif // MEDIACARD_H
