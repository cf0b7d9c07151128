#include "mediacard.h"

#include "deskcolours.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace {

const int Margin = 16;
const int PictureSize = 88;
const int ButtonSize = 64;
const int Narrow = 540; // a card narrower than this leaves its picture out for the text

} // namespace

MediaCard::MediaCard(QWidget *parent) : QWidget(parent)
{
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(8);
    layout->addStretch();
    m_previous = addButton(QStringLiteral("previous"), Qt::Key_MediaPrevious);
    m_pause = addButton(QStringLiteral("pause"), Qt::Key_MediaTogglePlayPause);
    m_next = addButton(QStringLiteral("next"), Qt::Key_MediaNext);
    setFixedHeight(PictureSize + 2 * Margin);
}

QToolButton *MediaCard::addButton(const QString &icon, int code)
{
    QToolButton *button = new QToolButton;
    button->setObjectName(QStringLiteral("mediaButton"));
    button->setIcon(QIcon(QStringLiteral(":/desk/keys/%1.png").arg(icon)));
    button->setIconSize(QSize(36, 36));
    button->setFixedSize(ButtonSize, ButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, code] { Q_EMIT keyTapped(code); });
    layout()->addWidget(button);
    return button;
}

void MediaCard::setTrack(const QString &source, const QPixmap &icon, const QString &title,
                         const QString &subtitle)
{
    m_source = source;
    m_icon = icon;
    m_title = title;
    m_subtitle = subtitle;
    for (QToolButton *button : {m_previous, m_pause, m_next}) {
        button->setVisible(!title.isEmpty());
    }
    update();
}

void MediaCard::setPlaying(bool isPlaying)
{
    m_pause->setIcon(
        QIcon(isPlaying ? QStringLiteral(":/desk/keys/pause.png") : QStringLiteral(":/desk/keys/play.png")));
}

void MediaCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(DeskColours::Panel);
    painter.drawRoundedRect(rect(), 10, 10);
    const bool hasPicture = width() >= Narrow;
    if (hasPicture) {
        painter.drawPixmap(QRect(Margin, Margin, PictureSize, PictureSize), m_icon);
    }

    const int left = hasPicture ? 2 * Margin + PictureSize : Margin;
    const int right = m_title.isEmpty() ? width() - Margin : width() - 2 * Margin - 3 * ButtonSize - 16;
    struct Line
    {
        const QString &text;
        int pixels;
        QColor colour;
    };
    const Line lines[] = {{m_source, 16, DeskColours::Accent},
                          {m_title.isEmpty() ? m_source : m_title, 24, DeskColours::Text},
                          {m_subtitle, 18, DeskColours::Dim}};
    int top = Margin + 2;
    for (const Line &line : lines) {
        QFont font = painter.font();
        font.setPixelSize(line.pixels);
        font.setBold(line.pixels == 24);
        painter.setFont(font);
        painter.setPen(line.colour);
        const int height = painter.fontMetrics().height();
        painter.drawText(QRect(left, top, right - left, height), Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(line.text, Qt::ElideRight, right - left));
        top += height + 1;
    }
}
