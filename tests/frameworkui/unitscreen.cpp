#include "unitscreen.h"

#include "orbhost.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

const int StripHeight = 48;

struct Sample
{
    const char *english;
    const char *translations[2]; // German, Chinese
};

const Sample samples[] = {
    {"OK", {"OK", "确定"}},
    {"Cancel", {"Abbrechen", "取消"}},
    {"A/C", {"A/C", "空调"}},
    {"AUTO", {"AUTO", "自动"}},
    {"OFF", {"AUS", "关闭"}},
    {"PTC", {"PTC", "电加热"}},
    {"Update available", {"Aktualisierung verfügbar", "有可用更新"}},
    {"Updating", {"Aktualisierung läuft", "正在更新"}},
    {"Update finished", {"Aktualisierung abgeschlossen", "更新完成"}},
    {"Update failed", {"Aktualisierung fehlgeschlagen", "更新失败"}},
    {"Update", {"Aktualisieren", "更新"}},
    {"Later", {"Später", "稍后"}},
    {"Close", {"Schließen", "关闭"}},
    {"Try again", {"Erneut versuchen", "重试"}},
    {"New firmware for the CAN decoder was found on the disk. Update now?",
     {"Auf dem Datenträger wurde neue Firmware für den CAN-Decoder gefunden. Jetzt aktualisieren?",
      "在磁盘上找到了 CAN 解码器的新固件。现在更新吗？"}},
    {"Do not remove the disk and do not switch off the ignition.",
     {"Datenträger nicht entfernen und die Zündung nicht ausschalten.",
      "请勿移除磁盘，也不要关闭点火开关。"}},
    {"Waiting for an answer ...", {"Warten auf Antwort ...", "等待应答 ..."}},
    {"All data was transferred. The disk can be removed.",
     {"Alle Daten wurden übertragen. Der Datenträger kann entfernt werden.",
      "数据已全部传输。可以移除磁盘。"}},
    {"The new firmware is being transferred.", {"Die neue Firmware wird übertragen.", "正在传输新固件。"}},
    {"The update was interrupted (code %1). Check the disk.",
     {"Die Aktualisierung wurde unterbrochen (Code %1). Bitte den Datenträger prüfen.",
      "更新中断（代码 %1）。请检查磁盘。"}},
};

void send(QWidget *widget, QEvent::Type type, const QPoint &place, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

QWidget *under(QWidget *widget, QPoint *place)
{
    QWidget *window = widget->window();
    const QPoint there = widget->mapTo(window, *place);
    QWidget *hit = window->childAt(there);
    hit = hit ? hit : window;
    *place = hit->mapFrom(window, there);
    return hit;
}

} // namespace

TestScreen::TestScreen(const QSize &size) : m_area(new QWidget(this))
{
    resize(size);
    OrbHost::instance()->setScreen(this, m_area);
    show();
}

TestScreen::~TestScreen()
{
    OrbHost::instance()->setScreen(nullptr, nullptr);
}

void TestScreen::press(QWidget *widget, const QPoint &place)
{
    QPoint at = place;
    QWidget *hit = under(widget, &at);
    send(hit, QEvent::MouseButtonPress, at, Qt::LeftButton);
}

void TestScreen::drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QPoint at = from;
    QWidget *hit = under(widget, &at);
    const int steps = 8;
    send(hit, QEvent::MouseButtonPress, at, Qt::LeftButton);
    for (int i = 1; i <= steps; ++i)
        send(hit, QEvent::MouseMove, at + (to - from) * i / steps, Qt::LeftButton);
    send(hit, QEvent::MouseButtonRelease, at + (to - from), Qt::NoButton);
}

void TestScreen::tap(QWidget *widget, const QPoint &place)
{
    drag(widget, place, place);
}

void TestScreen::resizeEvent(QResizeEvent *)
{
    m_area->setGeometry(rect().adjusted(0, StripHeight, 0, 0));
}

SampleTranslator::SampleTranslator(const QString &language) : m_column(language == "zh_CN" ? 1 : 0) {}

QString SampleTranslator::translate(const char *, const char *source, const char *, int) const
{
    for (const Sample &sample : samples) {
        if (qstrcmp(sample.english, source) == 0)
            return QString::fromUtf8(sample.translations[m_column]);
    }
    return QString();
}
