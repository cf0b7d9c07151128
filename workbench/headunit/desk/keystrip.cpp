#include "keystrip.h"

#include "unitkey.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const int KeyHeight = 64;
const int KeyGap = 8;
const int TextMargins = 8;
const int LetterSize = 13; // pixels; the style sheet's

const QVector<KeyStrip::Key> RawKeysOfSet1 = {{0x2000061, Qt::Key_Back},
                                              {0x2F00005, Qt::Key_Enter},
                                              {0x2F00010, Qt::Key_Home},
                                              {0x2000013, Qt::Key_MediaPrevious},
                                              {0x2000015, Qt::Key_MediaNext}};

const QVector<KeyStrip::Key> RawKeysOfSet2 = {
    {0x2F00001, Qt::Key_MediaPrevious}, {0x2000002, Qt::Key_MediaNext}, {0x2F00003, Qt::Key_Left},
    {0x2F00004, Qt::Key_Enter},         {0x2F00005, Qt::Key_Right},     {0x2F00006, Qt::Key_Home},
    {0x2F00007, Qt::Key_Back}};

QVector<KeyStrip::Key> standardKeys()
{
    QVector<KeyStrip::Key> keys;
    for (const int code :
         {int(Qt::Key_Home), int(Qt::Key_Back), int(Qt::Key_VolumeDown), int(Qt::Key_VolumeUp),
          int(Qt::Key_VolumeMute), int(Qt::Key_MediaPrevious), int(Qt::Key_MediaNext),
          int(UnitKey::ModeSwitch), int(Qt::Key_Call), int(Qt::Key_Hangup), int(Qt::Key_VoiceDial)}) {
        keys << KeyStrip::Key{code, code};
    }
    return keys;
}

QVector<KeyStrip::Key> rawKeys(int keySet)
{
    return keySet == 1 ? RawKeysOfSet1 : keySet == 2 ? RawKeysOfSet2 : QVector<KeyStrip::Key>();
}

} // namespace

KeyStrip::KeyStrip(int keySet, QWidget *parent) : QWidget(parent), m_repeatTimer(this)
{
    QVBoxLayout *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(KeyGap);
    for (const QVector<Key> &keys : {standardKeys(), rawKeys(keySet)}) {
        if (!keys.isEmpty()) {
            QHBoxLayout *row = new QHBoxLayout;
            row->setSpacing(KeyGap);
            rows->addLayout(row);
            addKeys(keys, row);
        }
    }
    setTexts();
    m_repeatTimer.setInterval(RepeatInterval);
    connect(&m_repeatTimer, &QTimer::timeout, this, [this] { Q_EMIT keyUsed(m_heldCode, Repeat); });
}

void KeyStrip::addKeys(const QVector<Key> &keys, QBoxLayout *row)
{
    for (const Key &key : keys) {
        QToolButton *button = new QToolButton;
        button->setObjectName(QStringLiteral("unitKey"));
        button->setFixedHeight(KeyHeight);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::NoFocus);
        if (key.code == key.meaning) {
            button->setIcon(QIcon(UnitKey::of(key.code).picture()));
            button->setIconSize(QSize(32, 32));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        }
        const int code = key.code;
        button->setToolTip(QStringLiteral("0x%1").arg(code, 0, 16));
        connect(button, &QToolButton::pressed, this, [this, code] { hold(code); });
        connect(button, &QToolButton::released, this, &KeyStrip::letGo);
        row->addWidget(button);
        m_buttons << Button{button, key};
    }
}

void KeyStrip::setTexts()
{
    for (const Button &button : m_buttons) {
        const QString name = UnitKey::of(button.key.meaning).text();
        button.widget->setText(name);
        QFont font = button.widget->font();
        font.setPixelSize(LetterSize);
        button.widget->setMinimumWidth(QFontMetrics(font).horizontalAdvance(name) + TextMargins);
    }
}

void KeyStrip::hold(int code)
{
    letGo();
    m_heldCode = code;
    m_repeatTimer.start();
    Q_EMIT keyUsed(code, Press);
}

void KeyStrip::letGo()
{
    if (m_heldCode != 0) {
        const int code = m_heldCode;
        m_heldCode = 0;
        m_repeatTimer.stop();
        Q_EMIT keyUsed(code, Release);
    }
}

void KeyStrip::hideEvent(QHideEvent *)
{
    letGo();
}

void KeyStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
