#include "adapterfixture.h"
#include "golden.h"
#include "vwbench.h"

#include "volkswagen/vwpagestate.h"
#include "volkswagen/vwtexts.h"

#include "boxcatalog.h"
#include "decoderbox.h"

#include "orbhost.h"

#include <QCheckBox>
#include <QLabel>

/// The car's settings menu as two texts that stand beside this file: what every row shows and does under a
/// finger with a virtual box behind it (vwmenu.txt), and what each bit of the box's replies puts where
/// (vwreplies.txt). golden.h says how the texts are written anew.
class TestVwMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menu();
    void replies();
};

namespace {

using VwBench::Page;

/// A page, in a car in a driving mode; null for a car that says nothing.
struct Scene
{
    int page;
    const char *mode;
};

/// A page with the virtual box behind it, without a line between them. Each hears the other when told to.
struct BoxedPage : Page
{
    explicit BoxedPage(const Scene &scene)
        : Page(unsigned(scene.page)), box(scene.mode ? BoxCatalog::createBox(3, nullptr, nullptr) : nullptr)
    {
        if (!box) {
            return;
        }
        box->car()->setValue("settings.drive.mode", scene.mode);
        tell(requests);
        VwBench::feed(*adapter, "60 02 12 03 00 00 00 00 00 | 61 01 00 05 00 | 62 01 03 00 00");
    }

    /// Lets the box take packages of the unit, and the unit the box's answers. What changed in the car.
    QStringList tell(const QStringList &packages)
    {
        if (!box) {
            return QStringList();
        }
        QSignalSpy changed(box->car(), &SimulatedCar::changed);
        QSignalSpy due(box->speaker(), &BoxSpeaker::reportDue);
        for (const QString &package : packages) {
            const QByteArray bytes = QByteArray::fromHex(package.toLatin1());
            box->speaker()->receive({quint8(bytes.at(0)), bytes.mid(1)}, &meaning);
        }
        for (const QVariantList &report : due) {
            const BoxPackage package = box->speaker()->reportPackage(report.first().toInt());
            adapter->onRecvMcuProtocol(RaiseWire::frame(package.command, package.data));
        }
        QStringList properties;
        for (const QVariantList &property : changed) {
            const QString name = property.first().toString();
            properties << name + '=' + box->car()->text(name);
        }
        return properties;
    }

    std::unique_ptr<DecoderBox> box;
    QString meaning;
};

QString textOf(const SelectDialog &dialog)
{
    QStringList parts{"dialog \"" + dialog.findChild<QLabel *>("txtTitle")->text() + '"'};
    if (const QLabel *text = dialog.findChild<QLabel *>("labelContent")) {
        parts << '"' + text->text() + '"';
    }
    for (const QCheckBox *box : dialog.findChildren<QCheckBox *>()) {
        parts << (box->isChecked() ? "[x]" : "[ ]") + box->text();
    }
    if (!dialog.getSliderValueText().isEmpty()) {
        parts << "number \"" + dialog.getSliderValueText() + '"';
    }
    return parts.join(' ');
}

/// What a test does in a dialog, and what it notes of it.
typedef std::function<QString(SelectDialog &)> Answer;

QString ok(SelectDialog &dialog)
{
    VwBench::click(dialog, "btnOk");
    return QString();
}

/// Rows that are new or, where their number has changed, gone ("-").
QStringList changes(const QStringList &before, const QStringList &now)
{
    QStringList changed;
    for (const QString &text : before) {
        if (before.size() != now.size() && !now.contains(text)) {
            changed << '-' + text;
        }
    }
    for (const QString &text : now) {
        if (!before.contains(text)) {
            changed << text;
        }
    }
    return changed;
}

/// Taps a cell and tells what came of it: the page that opened, the commands, the rows that changed with the
/// tap, what changed in the car, and the rows that its answer changed.
QString outcome(BoxedPage &bench, int row, int column, const Answer &answer)
{
    QStringList parts;
    const QStringList before = bench.rows();
    VwBench::tap(*bench.page, row, column, [&](SelectDialog &dialog) { parts << answer(dialog); });
    parts.removeAll(QString());
    const auto *front = qobject_cast<VWFunctionSetting *>(OrbHost::instance()->frontWindow());
    if (front && front != bench.page) {
        parts << QString("opens %1").arg(front->appId());
        delete front;
    }
    const QStringList sent = bench.sent();
    const QStringList shown = bench.rows();
    parts << sent << changes(before, shown) << bench.tell(sent) << changes(shown, bench.rows());
    return parts.isEmpty() ? "nothing" : parts.join("; ");
}

QString dataOf(const TableViewItemDatas &datas)
{
    QStringList parts;
    for (int role = Vw::OptionsRole; role <= Vw::UnitRole; ++role) {
        const QVariant data = datas.bindData(role);
        const QSize range = data.toSize();
        parts << (range.isValid() ? QString("%1..%2").arg(range.width()).arg(range.height())
                                  : data.toStringList().join('|'));
        parts.last() += data.userType() == QMetaType::Int ? data.toString() : QString();
    }
    return parts.join(' ');
}

/// Everything about the row \a row of a page. Taps of one outcome share a line.
QStringList linesOf(const Scene &scene, int row)
{
    QStringList outcomes;
    const auto note = [&](const QString &tap, const QString &outcome) {
        const bool again = !outcomes.isEmpty() && outcomes.last().section(": ", 1) == outcome;
        const QString taps = again ? outcomes.takeLast().section(": ", 0, 0) + ", " + tap : "    " + tap;
        outcomes << taps + ": " + outcome;
    };
    int choices = 0;
    bool isNumber = false;
    BoxedPage first(scene);
    const TableViewItemDatas datas = VwBench::modelOf(*first.page)->itemDatas(row);
    const QString kind = datas.isHeading() ? "heading" : datas.icon().remove(":/dazhong/set/");
    const QString mark = datas.mark().section('/', -1).remove(".png");
    const QStringList head{QString::number(datas.getItemId()), kind, mark, first.rows().at(row),
                           dataOf(datas)};
    note("label", outcome(first, row, TableViewItemDatas::TextColumn, [&](SelectDialog &dialog) {
             choices = int(dialog.findChildren<QCheckBox *>().size());
             isNumber = !dialog.getSliderValueText().isEmpty();
             const QString text = textOf(dialog);
             VwBench::cancel(dialog);
             return text;
         }));
    QMap<QString, Answer> answers;
    if (choices == 0 && !isNumber) {
        note("value", outcome(first, row, TableViewItemDatas::ValueColumn, ok));
        note("value again", outcome(first, row, TableViewItemDatas::ValueColumn, ok));
    }
    for (int i = 0; i < choices; ++i) {
        answers.insert(QString("choice %1").arg(i), [i](SelectDialog &dialog) {
            VwBench::check(dialog, i);
            return ok(dialog);
        });
    }
    for (int steps : isNumber ? QList<int>{1, -1, 50, -50} : QList<int>()) {
        answers.insert(QString("%1 steps").arg(steps), [steps](SelectDialog &dialog) {
            VwBench::step(dialog, steps);
            return ok(dialog);
        });
    }
    for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
        BoxedPage bench(scene);
        note(answer.key(), outcome(bench, row, TableViewItemDatas::ValueColumn, *answer));
    }
    BoxedPage silent({scene.page, nullptr});
    if (row < silent.rows().size()) {
        note("car silent", outcome(silent, row, TableViewItemDatas::ValueColumn, ok));
    }
    return QStringList("  " + head.join(' ').simplified()) + outcomes;
}

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

void TestVwMenu::menu()
{
    QStringList lines;
    for (int page = 771; page <= 787; ++page) {
        for (const char *mode : {"normal", "individual", "offroad_individual"}) {
            if (page != 785 && qstrcmp(mode, "normal") != 0) {
                continue;
            }
            const Scene scene = {page, mode};
            BoxedPage bench(scene);
            lines << QString("page %1 \"%2\" asks %3, %4")
                         .arg(page)
                         .arg(bench.page->windowTitle(), bench.requests.join(", "), mode);
            for (int row = 0; row < bench.rows().size(); ++row) {
                lines << linesOf(scene, row);
            }
        }
    }
    COMPARE_WITH_GOLDEN("vwmenu.txt", lines);
}

void TestVwMenu::replies()
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
            if (take(state, reply(1, 0, 0), quint8(command))) {
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

CANBUS_TEST_MAIN(TestVwMenu)
#include "tst_vwmenu.moc"
