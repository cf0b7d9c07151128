#include "linestrip.h"

#include "deskcolours.h"
#include "linewords.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace {

const int Height = 36;
const int Margin = 12;
const int LampSize = 12;
const int Gap = 24;
const int NoteTime = 8000; // ms

} // namespace

LineStrip::LineStrip(const QString &car, QWidget *parent)
    : QWidget(parent), m_car(car), m_save(new QPushButton)
{
    setFixedHeight(Height);
    m_save->setObjectName(QStringLiteral("stripButton"));
    m_save->setFocusPolicy(Qt::NoFocus);
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 3, 3, 3);
    layout->addStretch();
    layout->addWidget(m_save);
    connect(m_save, &QPushButton::clicked, this, &LineStrip::saveWanted);
    m_noteTimer.setSingleShot(true);
    connect(&m_noteTimer, &QTimer::timeout, this, [this] {
        m_note.clear();
        update();
    });
    setTexts();
}

void LineStrip::setStatus(const LineStatus &status)
{
    m_status = status;
    update();
}

void LineStrip::setNote(const QString &sentence)
{
    m_note = sentence;
    m_noteTimer.start(NoteTime);
    update();
}

QString LineStrip::text() const
{
    QStringList parts;
    for (const QString &part : {m_car, m_status.port, m_status.text()}) {
        if (!part.isEmpty()) {
            parts << part;
        }
    }
    return parts.join(QStringLiteral(" · "));
}

void LineStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(DeskColours::Panel);
    painter.drawRoundedRect(rect(), 8, 8);
    painter.setBrush(LineWords::colour(m_status));
    painter.drawEllipse(QRect(Margin, (height() - LampSize) / 2, LampSize, LampSize));

    QFont font = painter.font();
    font.setPixelSize(14);
    font.setBold(true);
    painter.setFont(font);
    QRect place = rect().adjusted(Margin + LampSize + 8, 0, m_save->x() - width() - Margin, 0);
    painter.setPen(DeskColours::Text);
    const QString said = painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    painter.drawText(place, Qt::AlignVCenter, said);
    place.setLeft(place.left() + painter.fontMetrics().horizontalAdvance(said) + Gap);

    font.setBold(false);
    painter.setFont(font);
    painter.setPen(m_note.isEmpty() ? DeskColours::Dim : DeskColours::Text);
    const QString rest = m_note.isEmpty() ? LineWords::counts(m_status) : m_note;
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignRight,
                     painter.fontMetrics().elidedText(rest, Qt::ElideMiddle, qMax(0, place.width())));
}

void LineStrip::setTexts()
{
    m_save->setText(tr("Save the last 60 s"));
    m_save->setToolTip(QStringLiteral("F12"));
    update();
}

void LineStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
