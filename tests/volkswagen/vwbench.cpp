#include "vwbench.h"

#include "testscreen.h"

#include "orbhost.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>
#include <QTimer>

namespace VwBench {

void feed(CanBus_Raise_Volkswagen &adapter, const QByteArray &packages)
{
    for (const QByteArray &package : packages.split('|')) {
        adapter.onRecvMcuProtocol(RaiseWire::frame(package));
    }
}

TableListView *listOf(const VWFunctionSetting &page)
{
    return page.findChild<TableListView *>();
}

TableViewModel *modelOf(const VWFunctionSetting &page)
{
    return static_cast<TableViewModel *>(listOf(page)->model());
}

QString valueOf(const VWFunctionSetting &page, int row)
{
    const TableViewItemDatas datas = modelOf(page)->itemDatas(row);
    const QVariant value = datas.value(TableViewItemDatas::ValueColumn);
    if (datas.isSwitch()) {
        return value.toBool() ? "on" : "off";
    }
    return value.toString();
}

QStringList rowsOf(const VWFunctionSetting &page)
{
    QStringList rows;
    for (int row = 0; row < modelOf(page)->rowCount(); ++row) {
        rows << modelOf(page)->itemDatas(row).text() + '=' + valueOf(page, row);
    }
    return rows;
}

bool tap(VWFunctionSetting &page, int row, int column, const std::function<void(SelectDialog &)> &answer)
{
    bool answered = false;
    QTimer::singleShot(0, qApp, [&] {
        if (SelectDialog *dialog = openDialog()) {
            answered = true;
            if (answer) {
                answer(*dialog);
            }
            // Whatever the answer was, the test goes on.
            if (SelectDialog *open = openDialog()) {
                open->reject();
            }
        }
    });
    TableListView *list = listOf(page);
    list->doItemsLayout(); // rows that have just come are not laid out yet
    const QModelIndex index = list->model()->index(row, column);
    list->scrollTo(index);
    TestScreen::tap(list->viewport(), list->visualRect(index).center());
    QCoreApplication::processEvents();
    return answered;
}

QStringList sent(TraceRecorder &trace)
{
    const QString call = "ProtocolUtils.writeDatas(";
    QStringList packages;
    for (const QString &line : trace.take()) {
        if (line.startsWith(call)) {
            const QByteArray frame = QByteArray::fromHex(line.mid(call.size()).chopped(1).toLatin1());
            packages << RaiseWire::parse(frame).packages.join('|');
        }
    }
    return packages;
}

SelectDialog *openDialog()
{
    const QList<QWidget *> windows = OrbHost::instance()->windows();
    for (QWidget *window : windows) {
        SelectDialog *dialog = qobject_cast<SelectDialog *>(window);
        if (dialog && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

void check(SelectDialog &dialog, int index)
{
    const QList<QCheckBox *> boxes = dialog.findChildren<QCheckBox *>();
    if (index < boxes.size()) {
        boxes.at(index)->click();
    }
}

void step(SelectDialog &dialog, int steps)
{
    for (int i = 0; i < qAbs(steps); ++i) {
        click(dialog, steps > 0 ? "btnInc" : "btnDec");
    }
}

void click(const QWidget &window, const QString &button)
{
    if (QAbstractButton *found = window.findChild<QAbstractButton *>(button)) {
        found->click();
    }
}

void cancel(SelectDialog &dialog)
{
    click(dialog, "btnCancel");
}

QStringList commands(int item, int value)
{
    return {"c6 " + QByteArray(1, char(item)).toHex() + ' ' + QByteArray(1, char(value)).toHex()};
}

SettingsFolder::SettingsFolder()
{
    OrbHost::instance()->setSettingsDir(folder.path());
}

Page::Page(unsigned int pageId)
    : adapter(new CanBus_Raise_Volkswagen), page(new VWFunctionSetting(pageId, adapter.get()))
{
    page->show();
    requests = sent();
}

void Page::reopen(unsigned int pageId)
{
    delete page;
    page = new VWFunctionSetting(pageId, adapter.get());
    page->show();
    requests = sent();
}

Page::~Page()
{
    delete page;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace VwBench
