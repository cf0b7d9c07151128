#ifndef APPTILE_H
#define APPTILE_H

#include <QAbstractButton>
#include <QPixmap>

/// One tile of the launcher: a picture, another one while it is pressed or in front, and a title below.
class AppTile : public QAbstractButton
{
    Q_OBJECT

public:
    /// \a normal and \a highlighted: picture files or resources. One that does not load is replaced by the
    /// other, and both by the launcher's own picture for applications without one.
    AppTile(const QString &title, const QString &normal, const QString &highlighted,
            QWidget *parent = nullptr);

    QSize sizeHint() const override;

    /// The lines in which the title is drawn, at most two, in letters of \a pixels: as large as the whole title is
    /// legible in. Past the smallest ones the second line is shortened.
    QStringList titleLines(int *pixels) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_normal;
    QPixmap m_highlighted;
};

#endif // APPTILE_H
