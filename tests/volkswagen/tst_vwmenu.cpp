#include "adapterfixture.h"
#include "golden.h"
#include "vwbench.h"

#include "volkswagen/vwpagestate.h"

#include "boxcatalog.h"
#include "decoderbox.h"

#include "orbhost.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>

/// The car's settings menu as the text vwmenu.txt: what every row shows and does under a finger, with a virtual
/// box behind it. golden.h says how the text is written anew.
class TestVwMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menu();
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

CANBUS_TEST_MAIN(TestVwMenu)
#include "tst_vwmenu.moc"
