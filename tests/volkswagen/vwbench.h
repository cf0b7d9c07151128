#ifndef VWBENCH_H
#define VWBENCH_H

#include "raisewire.h"
#include "tracerecorder.h"

#include "volkswagen/canbus_raise_volkswagen.h"
#include "volkswagen/selectdialog.h"
#include "volkswagen/vwfunctionsetting.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QStringList>

#include <functional>

/// The screens of the Volkswagen under test: packages go straight into the adapter, clicks onto the real
/// widgets.
namespace VwBench {

/// Hands the adapter packages "40 10 02 | 65 00 01 00 02" as its line would.
void feed(CanBus_Raise_Volkswagen &adapter, const char *packages);

/// Model and list of a settings page.
TableViewModel *modelOf(const VWFunctionSetting &page);
TableListView *listOf(const VWFunctionSetting &page);

/// Row of item \a item, and the row with that label; -1 when the page has none.
int rowOf(const VWFunctionSetting &page, int item);
int rowOf(const VWFunctionSetting &page, const QString &label);

/// Text of a row's value; a switch's is "on" or "off".
QString valueOf(const VWFunctionSetting &page, int row);

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
void click(const QWidget &window, const char *button);

} // namespace VwBench

#endif // VWBENCH_H
