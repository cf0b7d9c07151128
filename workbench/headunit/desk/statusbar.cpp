#include "statusbar.h"

#include "deskcolours.h"

#include <QLocale>
#include <QPainter>
#include <QTimerEvent>

namespace {

const int margin = 16;
const int gap = 16;
const int iconSize = 28;
const int volumeBarWidth = 96;
const int volumeFigureWidth = 32;

QFont textFont(int pixels, bool isBold)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QRect leftOf(int right, int width)
{
    return QRect(right - width, 0, width, StatusBar::barHeight);
}

void paintIcon(QPainter *painter, const QRect &place, const QPixmap &icon)
{
    painter->drawPixmap(QRect(place.x(), (StatusBar::barHeight - iconSize) / 2, iconSize, iconSize), icon);
}

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent)
    , m_volumeIcon(QStringLiteral(":/desk/keys/volume.png"))
    , m_muteIcon(QStringLiteral(":/desk/keys/mute.png"))
    , m_callIcon(QStringLiteral(":/desk/keys/call.png"))
    , m_voiceIcon(QStringLiteral(":/desk/keys/voice.png"))
{
    setFixedHeight(barHeight);
    m_clockTimer.start(1000, this);
}

void StatusBar::setTwelveHourClock(bool isTwelveHour)
{
    m_isTwelveHour = isTwelveHour;
    update();
}

void StatusBar::holdClock(const QTime &time)
{
    m_heldTime = time;
    update();
}

QString StatusBar::clockText() const
{
    const QTime time = m_heldTime.isValid() ? m_heldTime : QTime::currentTime();
    return m_isTwelveHour ? QLocale::c().toString(time, QStringLiteral("h:mm AP"))
                          : time.toString(QStringLiteral("HH:mm"));
}

void StatusBar::setApplication(const QString &name)
{
    m_application = name;
    update();
}

void StatusBar::setMode(const QString &name)
{
    m_mode = name;
    update();
}

void StatusBar::setCall(const QString &text, bool isInCall)
{
    m_callText = text;
    m_isInCall = isInCall;
    update();
}

void StatusBar::setVolume(int volume, int loudest, bool isMuted)
{
    m_volume = volume;
    m_loudest = qMax(1, loudest);
    m_isMuted = isMuted;
    update();
}

void StatusBar::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_clockTimer.timerId()) {
        update();
    }
}

int StatusBar::paintVolume(QPainter *painter, int right) const
{
    painter->setFont(textFont(18, true));
    painter->setPen(m_isMuted ? DeskColours::dim : DeskColours::text);
    painter->drawText(leftOf(right, volumeFigureWidth), Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(m_volume));
    right -= volumeFigureWidth + gap / 2;
    const QRectF groove(right - volumeBarWidth, barHeight / 2.0 - 3, volumeBarWidth, 6);
    painter->setPen(Qt::NoPen);
    painter->setBrush(DeskColours::edge);
    painter->drawRoundedRect(groove, 3, 3);
    painter->setBrush(m_isMuted ? DeskColours::dim : DeskColours::accent);
    painter->drawRoundedRect(QRectF(groove.topLeft(), QSizeF(groove.width() * m_volume / m_loudest, 6)), 3,
                             3);
    right -= volumeBarWidth + gap / 2;
    paintIcon(painter, leftOf(right, iconSize), m_isMuted ? m_muteIcon : m_volumeIcon);
    return right - iconSize - gap;
}

int StatusBar::paintMode(QPainter *painter, int right) const
{
    painter->setFont(textFont(16, false));
    const QRect place = leftOf(right, painter->fontMetrics().horizontalAdvance(m_mode) + 24);
    painter->setPen(Qt::NoPen);
    painter->setBrush(DeskColours::edge);
    painter->drawRoundedRect(place.adjusted(0, 9, 0, -9), 10, 10);
    painter->setPen(DeskColours::text);
    painter->drawText(place, Qt::AlignCenter, m_mode);
    return place.left() - gap;
}

int StatusBar::paintCall(QPainter *painter, int right) const
{
    if (m_callText.isEmpty()) {
        return right;
    }
    painter->setFont(textFont(18, true));
    const QRect place = leftOf(right, painter->fontMetrics().horizontalAdvance(m_callText) + 2);
    painter->setPen(m_isInCall ? DeskColours::good : DeskColours::accent);
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter, m_callText);
    right = place.left() - gap / 2;
    paintIcon(painter, leftOf(right, iconSize), m_isInCall ? m_callIcon : m_voiceIcon);
    return right - iconSize - gap;
}

void StatusBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), DeskColours::ground);

    painter.setFont(textFont(24, true));
    painter.setPen(DeskColours::text);
    const QString clock = clockText();
    const int clockWidth = painter.fontMetrics().horizontalAdvance(clock);
    painter.drawText(QRect(margin, 0, clockWidth + 2, barHeight), Qt::AlignVCenter, clock);

    int right = paintVolume(&painter, width() - margin);
    right = paintMode(&painter, right);
    right = paintCall(&painter, right);

    const int left = margin + clockWidth + 2 * gap;
    painter.setFont(textFont(20, false));
    painter.setPen(DeskColours::dim);
    const QString name =
        painter.fontMetrics().elidedText(m_application, Qt::ElideRight, qMax(0, right - left));
    painter.drawText(QRect(left, 0, qMax(0, right - left), barHeight), Qt::AlignVCenter, name);
}
