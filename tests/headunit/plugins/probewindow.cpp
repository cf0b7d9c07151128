#include "probewindow.h"

#include "probeplugin.h"

#include "tableviewmodel.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

template <typename Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace

ProbeWindow::ProbeWindow() : OrbMainWindow(700), m_model(new TableViewModel(this))
{
    setWindowTitle("Probe window");
    QWidget *page = new QWidget;
    QVBoxLayout *layout = new QVBoxLayout(page);
    QLabel *label = named(new QLabel(QString::fromUtf8("21.5°C")), "lblValue");
    label->setStyleSheet("color: red");
    QPushButton *askButton = named(new QPushButton("Ask"), "btnAsk");
    QPushButton *disabled = named(new QPushButton("Off"), "btnOff");
    disabled->setEnabled(false);
    QPushButton *hidden = named(new QPushButton("Gone"), "btnGone");
    QTableView *list = new QTableView;
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (QWidget *widget :
         {static_cast<QWidget *>(label), static_cast<QWidget *>(askButton), static_cast<QWidget *>(disabled),
          static_cast<QWidget *>(hidden), static_cast<QWidget *>(list)}) {
        layout->addWidget(widget);
    }
    hidden->hide();
    setCentralWidget(page);
    fillList();
    list->setModel(m_model);
    connect(askButton, &QPushButton::clicked, this, &ProbeWindow::asked);
    connect(list, &QTableView::clicked, this, [](const QModelIndex &index) {
        ProbePlugin::report(ProbePlugin::Clicked, uint(index.row()), uint(index.column()));
    });
}

// More rows than the list can show at once.
void ProbeWindow::fillList()
{
    for (int row = 0; row < 30; ++row) {
        TableViewItemDatas datas(row, QString("Row %1").arg(row));
        datas.setValue(TableViewItemDatas::SecondColumn, "second");
        datas.setValue(TableViewItemDatas::ValueColumn, row == 1 ? QVariant(true) : QVariant("low"));
        m_model->appendItemDatas(datas);
    }
}
