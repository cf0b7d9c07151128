#include "golden.h"
#include "testmain.h"

#include "volkswagen/vwfunctionsetting.h"
#include "volkswagen/vwpagestate.h"
#include "volkswagen/vwtexts.h"

#include "tableviewmodel.h"

/// What each bit of the box's replies puts into which row of which page, and the texts by number, as the text
/// vwreplies.txt. golden.h says how it is written anew.
class TestVwReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replies();
};

namespace {

/// The rows of \a state by item and label.
QMap<QString, QString> shownBy(const Vw::PageState &state)
{
    QMap<QString, QString> shown;
    for (const TableViewItemDatas &datas : state.rows()) {
        const QVariant value = datas.value(TableViewItemDatas::ValueColumn);
        shown.insert(QString("%1 %2").arg(datas.getItemId()).arg(datas.text()),
                     datas.isSwitch() ? QString(value.toBool() ? "on" : "off") : value.toString());
    }
    return shown;
}

bool take(Vw::PageState &state, const QByteArray &data, quint8 command = 0x40)
{
    const auto *bytes = reinterpret_cast<const quint8 *>(data.constData());
    return state.take(PackageView(command, bytes, int(data.size())));
}

/// A reply of the sub-type \a subType, its data bytes all \a byte; in the driving mode \a mode.
QByteArray reply(int subType, int byte, int mode, int size = 8)
{
    QByteArray data(size, char(byte));
    data[0] = char(subType);
    if (subType == 0xA0 && mode > 0 && size > 1) {
        data[1] = char(mode);
    }
    return data;
}

/// A page that the car has told its driving mode.
Vw::PageState stateOf(int page, int mode)
{
    Vw::PageState state{unsigned(page)};
    if (mode > 0) {
        take(state, reply(0xA0, 0, mode, 2));
    }
    return state;
}

/// "mask 0 OFF, 1..3 #": what \a texts, by the values of a byte, make of the bits that matter to them.
QString bitsOf(const QStringList &texts)
{
    int mask = 0;
    for (int value = 0; value < 256; ++value) {
        for (int bit = 1; bit < 256; bit <<= 1) {
            mask |= texts.at(value) != texts.at(value ^ bit) ? bit : 0;
        }
    }
    if (mask == 0) {
        return QString();
    }
    QStringList runs;
    QString last;
    for (int value = 0; value < 256; ++value) {
        if (value & ~mask) {
            continue;
        }
        const int number = value / (mask & -mask);
        QString text = texts.at(value);
        if (text.section(' ', 0, 0) == QString::number(number)) {
            text.replace(0, QString::number(number).size(), '#');
        }
        if (text != last || runs.isEmpty()) {
            runs << QString::number(number) + " " + text;
        }
        last = text;
    }
    return QString("bits %1: ").arg(mask, 2, 16, QChar('0')) + runs.join(", ");
}

/// What byte \a byte of a reply does to the rows of a page, the others being 0.
QStringList bitsOf(int page, int mode, int subType, int byte)
{
    QVector<QMap<QString, QString>> shown;
    QMap<QString, QString> rows;
    for (int value = 0; value < 256; ++value) {
        Vw::PageState state = stateOf(page, mode);
        QByteArray data = reply(subType, 0, mode);
        take(state, data);
        data[byte] = char(value);
        take(state, data);
        shown << shownBy(state);
        rows.insert(shown.last());
    }
    QStringList lines;
    for (const QString &row : rows.keys()) {
        QStringList texts;
        for (const QMap<QString, QString> &state : shown) {
            texts << state.value(row, "(no row)");
        }
        const QString bits = bitsOf(texts);
        if (!bits.isEmpty()) {
            lines << QString("  byte %1 %2 %3").arg(byte).arg(row, bits);
        }
    }
    return lines;
}

/// What a reply that ends early leaves: the rows that each further byte brings.
QString growthOf(int page, int mode, int subType)
{
    QStringList steps;
    QMap<QString, QString> before = shownBy(stateOf(page, mode));
    const int filled = mode == 6 ? 2 : 1; // a code that the rows of the mode know
    Vw::PageState whole = stateOf(page, mode);
    if (!take(whole, reply(subType, filled, mode)) || shownBy(whole) == before) {
        return QString();
    }
    for (int size = 1; size <= 8; ++size) {
        Vw::PageState state = stateOf(page, mode);
        take(state, reply(subType, filled, mode, size));
        const QMap<QString, QString> shown = shownBy(state);
        for (auto row = shown.begin(); row != shown.end(); ++row) {
            if (before.value(row.key()) != row.value()) {
                steps << QString("%1 bytes %2=%3").arg(size).arg(row.key(), row.value());
            }
        }
        before = shown;
    }
    return steps.join(", ");
}

} // namespace

void TestVwReplies::replies()
{
    QStringList lines;
    for (int number = -1; number <= 40; ++number) {
        lines << QString("text %1: %2; %3")
                     .arg(number)
                     .arg(Vw::getStartStopInfo(number), Vw::getConvConsumerInfo(number))
                     .trimmed();
    }
    for (int page = 770; page <= 787; ++page) {
        Vw::PageState state{unsigned(page)};
        QStringList heard;
        for (int command = 0; command < 256; ++command) {
            bool isHeard = false;
            for (int subType = 0; subType < 256; ++subType) {
                isHeard = take(state, reply(subType, 0, 0), quint8(command)) || isHeard;
            }
            if (isHeard) {
                heard << QString::number(command, 16);
            }
        }
        lines << QString("page %1 \"%2\" hears [%3]")
                     .arg(page)
                     .arg(VWFunctionSetting::getAppTitleFromId(unsigned(page)), heard.join(' '));
        for (int mode : page == 785 ? QList<int>{0, 3, 6} : QList<int>{0}) {
            for (int subType = 0; subType < 256; ++subType) {
                const QString growth = growthOf(page, mode, subType);
                if (growth.isEmpty() || (mode > 0 && subType != 0xA0)) {
                    continue; // the mode matters to its own rows only
                }
                lines << QString("reply %1 in driving mode %2: %3").arg(subType, 0, 16).arg(mode).arg(growth);
                for (int byte = mode > 0 ? 2 : 1; byte < 8; ++byte) {
                    lines << bitsOf(page, mode, subType, byte);
                }
            }
        }
    }
    COMPARE_WITH_GOLDEN("vwreplies.txt", lines);
}

CANBUS_TEST_MAIN(TestVwReplies)
#include "tst_vwreplies.moc"
