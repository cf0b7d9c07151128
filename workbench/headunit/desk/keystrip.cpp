#include "keystrip.h"

#include "unitkeys.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const int KeyHeight = 64;
const int KeyGap = 8;

const QVector<KeyStrip::Key> RawKeysOfSet1 = {{QT_TRANSLATE_NOOP("KeyStrip", "Back"), nullptr, 0x2000061},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Enter"), nullptr, 0x2F00005},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Home"), nullptr, 0x2F00010},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Previous"), nullptr, 0x2000013},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Next"), nullptr, 0x2000015}};

const QVector<KeyStrip::Key> RawKeysOfSet2 = {{QT_TRANSLATE_NOOP("KeyStrip", "Previous"), nullptr, 0x2F00001},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Next"), nullptr, 0x2000002},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Left"), nullptr, 0x2F00003},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Enter"), nullptr, 0x2F00004},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Right"), nullptr, 0x2F00005},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Home"), nullptr, 0x2F00006},
                                              {QT_TRANSLATE_NOOP("KeyStrip", "Back"), nullptr, 0x2F00007}};

} // namespace

const QVector<KeyStrip::Key> &KeyStrip::standardKeys()
{
    static const QVector<Key> keys = {{QT_TR_NOOP("Home"), "home", Qt::Key_Home},
                                      {QT_TR_NOOP("Back"), "back", Qt::Key_Back},
                                      {QT_TR_NOOP("Vol −"), "volume-down", Qt::Key_VolumeDown},
                                      {QT_TR_NOOP("Vol +"), "volume-up", Qt::Key_VolumeUp},
                                      {QT_TR_NOOP("Mute"), "mute", Qt::Key_VolumeMute},
                                      {QT_TR_NOOP("Previous"), "previous", Qt::Key_MediaPrevious},
                                      {QT_TR_NOOP("Next"), "next", Qt::Key_MediaNext},
                                      {QT_TR_NOOP("Mode"), "mode", UnitKeys::ModeSwitch},
                                      {QT_TR_NOOP("Call"), "call", Qt::Key_Call},
                                      {QT_TR_NOOP("Hang up"), "hangup", Qt::Key_Hangup},
                                      {QT_TR_NOOP("Voice"), "voice", Qt::Key_VoiceDial}};
    return keys;
}

QVector<KeyStrip::Key> KeyStrip::rawKeys(int keySet)
{
    switch (keySet) {
    case 1:
        return RawKeysOfSet1;
    case 2:
        return RawKeysOfSet2;
    default:
        return QVector<Key>();
    }
}

KeyStrip::KeyStrip(int keySet, QWidget *parent) : QWidget(parent)
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
        if (key.icon) {
            button->setIcon(QIcon(QStringLiteral(":/desk/keys/%1.png").arg(QLatin1String(key.icon))));
            button->setIconSize(QSize(32, 32));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        }
        const int code = key.code;
        connect(button, &QToolButton::pressed, this, [this, code] { hold(code); });
        connect(button, &QToolButton::released, this, &KeyStrip::letGo);
        row->addWidget(button);
        m_buttons << Button{button, key};
    }
}

void KeyStrip::setTexts()
{
    for (const Button &button : m_buttons) {
        const QString name = tr(button.key.name);
        button.widget->setText(
            button.key.icon ? name : QStringLiteral("%1\n0x%2").arg(name).arg(button.key.code, 0, 16));
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
