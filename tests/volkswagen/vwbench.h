#ifndef VWBENCH_H
#define VWBENCH_H

#include "raisewire.h"
#include "testscreen.h"
#include "tracerecorder.h"

#include "volkswagen/canbus_raise_volkswagen.h"
#include "volkswagen/selectdialog.h"
#include "volkswagen/vwfunctionsetting.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// The screens of the Volkswagen under test: packages go straight into the adapter, clicks onto the real
/// widgets.
namespace VwBench {

/// Hands the adapter packages "40 10 02 | 65 00 01 00 02" as its line would.
void feed(CanBus_Raise_Volkswagen &adapter, const QByteArray &packages);

/// Model and list of a settings page.
TableViewModel *modelOf(const VWFunctionSetting &page);
TableListView *listOf(const VWFunctionSetting &page);

/// Text of a row's value; a switch's is "on" or "off".
QString valueOf(const VWFunctionSetting &page, int row);

/// "LABEL=VALUE" of each row.
QStringList rowsOf(const VWFunctionSetting &page);

/// Brings a cell into view and taps it. \a answer runs once the dialog that the tap opens is there; false
/// when none was.
bool tap(VWFunctionSetting &page, int row, int column,
         const std::function<void(SelectDialog &)> &answer = nullptr);

/// The packages that the unit queued since the recorder was asked last: "90 50 20".
QStringList sent(TraceRecorder &trace);

/// The open select dialog, or null.
SelectDialog *openDialog();

/// Checks the \a index-th check box of the dialog, or steps its number ("+" \a steps times, "-" for less than
/// 0), or presses a button of it.
void check(SelectDialog &dialog, int index);
void step(SelectDialog &dialog, int steps);
void click(const QWidget &window, const QString &button);

void cancel(SelectDialog &dialog);

/// The package that sets \a item to \a value, as sent() gives it.
QStringList commands(int item, int value);

/// A settings folder that goes with the test.
struct SettingsFolder
{
    SettingsFolder();

    QTemporaryDir folder;
};

/// One open settings page with its adapter, on a screen of its own.
struct Page
{
    explicit Page(unsigned int pageId);
    ~Page();

    /// What the page asked for when it opened.
    QStringList requests;

    QStringList sent() { return VwBench::sent(trace); }
    /// Row of item \a item, -1 when the page has none.
    int rowOf(int item) const { return modelOf(*page)->rowOfItem(item); }
    QString valueOf(int item) const { return VwBench::valueOf(*page, rowOf(item)); }
    bool tap(int item, const std::function<void(SelectDialog &)> &answer = nullptr, int column = 0)
    {
        return VwBench::tap(*page, rowOf(item), column, answer);
    }
    /// Hands the adapter a settings reply with \a data.
    void feed(const QByteArray &data) { adapter->onRecvMcuProtocol(RaiseWire::frame(0x40, data)); }
    QStringList rows() const { return rowsOf(*page); }

    /// Leaves the page and opens it, or another one, again.
    void reopen(unsigned int pageId);

    SettingsFolder settings;
    TestScreen screen;
    TraceRecorder trace;
    std::unique_ptr<CanBus_Raise_Volkswagen> adapter;
    QPointer<VWFunctionSetting> page;
};

} // namespace VwBench

#endif // VWBENCH_H
