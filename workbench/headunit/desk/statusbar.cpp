#include "statusbar.h"

#include "deskcolours.h"

#include <QLocale>
#include <QPainter>
#include <QTime>
#include <QTimerEvent>

namespace {

const int Margin = 16;
const int Gap = 16;
const int IconSize = 28;
const int VolumeBarWidth = 96;
const int VolumeFigureWidth = 32;

QFont textFont(int pixels, bool isBold)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QRect leftOf(int right, int width)
{
    return QRect(right - width, 0, width, StatusBar::BarHeight);
}

void paintIcon(QPainter *painter, const QRect &place, const QPixmap &icon)
{
    painter->drawPixmap(QRect(place.x(), (StatusBar::BarHeight - IconSize) / 2, IconSize, IconSize), icon);
}

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent)
    , m_volumeIcon(QStringLiteral(":/desk/keys/volume.png"))
    , m_muteIcon(QStringLiteral(":/desk/keys/mute.png"))
    , m_callIcon(QStringLiteral(":/desk/keys/call.png"))
    , m_voiceIcon(QStringLiteral(":/desk/keys/voice.png"))
{
    setFixedHeight(BarHeight);
    m_clockTimer.start(1000, this);
}

void StatusBar::setTwelveHourClock(bool isTwelveHour)
{
    m_isTwelveHour = isTwelveHour;
    update();
}

QString StatusBar::clockText() const
{
    const QTime time = QTime::currentTime();
    return m_isTwelveHour ? QLocale::c().toString(time, QStringLiteral("h:mm AP"))
                          : time.toString(QStringLiteral("HH:mm"));
}

void StatusBar::setApplication(const QString &name)
{
    if (name != m_application) { // what is painted up here has all below painted with it
        m_application = name;
        update();
    }
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
    if (event->timerId() == m_clockTimer.timerId() && clockText() != m_shownClock) {
        m_shownClock = clockText();
        update();
    }
}

int StatusBar::paintVolume(QPainter *painter, int right) const
{
    painter->setFont(textFont(18, true));
    painter->setPen(m_isMuted ? DeskColours::Dim : DeskColours::Text);
    painter->drawText(leftOf(right, VolumeFigureWidth), Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(m_volume));
    right -= VolumeFigureWidth + Gap / 2;
    const QRectF groove(right - VolumeBarWidth, BarHeight / 2.0 - 3, VolumeBarWidth, 6);
    painter->setPen(Qt::NoPen);
    painter->setBrush(DeskColours::Edge);
    painter->drawRoundedRect(groove, 3, 3);
    painter->setBrush(m_isMuted ? DeskColours::Dim : DeskColours::Accent);
    painter->drawRoundedRect(QRectF(groove.topLeft(), QSizeF(groove.width() * m_volume / m_loudest, 6)), 3,
                             3);
    right -= VolumeBarWidth + Gap / 2;
    paintIcon(painter, leftOf(right, IconSize), m_isMuted ? m_muteIcon : m_volumeIcon);
    return right - IconSize - Gap;
}

int StatusBar::paintMode(QPainter *painter, int right) const
{
    painter->setFont(textFont(16, false));
    const QRect place = leftOf(right, painter->fontMetrics().horizontalAdvance(m_mode) + 24);
    painter->setPen(Qt::NoPen);
    painter->setBrush(DeskColours::Edge);
    painter->drawRoundedRect(place.adjusted(0, 9, 0, -9), 10, 10);
    painter->setPen(DeskColours::Text);
    painter->drawText(place, Qt::AlignCenter, m_mode);
    return place.left() - Gap;
}

int StatusBar::paintCall(QPainter *painter, int right) const
{
    if (m_callText.isEmpty()) {
        return right;
    }
    painter->setFont(textFont(18, true));
    const QRect place = leftOf(right, painter->fontMetrics().horizontalAdvance(m_callText) + 2);
    painter->setPen(m_isInCall ? DeskColours::Good : DeskColours::Accent);
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter, m_callText);
    right = place.left() - Gap / 2;
    paintIcon(painter, leftOf(right, IconSize), m_isInCall ? m_callIcon : m_voiceIcon);
    return right - IconSize - Gap;
}

void StatusBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), DeskColours::Ground);

    painter.setFont(textFont(24, true));
    painter.setPen(DeskColours::Text);
    const QString clock = clockText();
    const int clockWidth = painter.fontMetrics().horizontalAdvance(clock);
    painter.drawText(QRect(Margin, 0, clockWidth + 2, BarHeight), Qt::AlignVCenter, clock);

    int right = paintVolume(&painter, width() - Margin);
    right = paintMode(&painter, right);
    right = paintCall(&painter, right);

    const int left = Margin + clockWidth + 2 * Gap;
    painter.setFont(textFont(20, false));
    painter.setPen(DeskColours::Dim);
    const QString name =
        painter.fontMetrics().elidedText(m_application, Qt::ElideRight, qMax(0, right - left));
    painter.drawText(QRect(left, 0, qMax(0, right - left), BarHeight), Qt::AlignVCenter, name);
}
