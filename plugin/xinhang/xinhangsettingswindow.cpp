#include "xinhangsettingswindow.h"

#include "choicedialog.h"
#include "xinhangsettings.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QEvent>
#include <QPointer>

namespace {

const char DropDownMark[] = ":/dazhong/set/xiala.png";

}

XinHangSettingsWindow::XinHangSettingsWindow(XinHangSettings &settings)
    : m_settings(settings), m_model(new TableViewModel(this))
{
    TableListView *const view = new TableListView(this);
    view->setObjectName(QLatin1String("itemListView"));
    view->setModel(m_model);
    setCentralWidget(view);
    connect(view, SIGNAL(clicked(QModelIndex)), this, SLOT(onItemListViewClicked(QModelIndex)));
    resetListTexts();
}

void XinHangSettingsWindow::resetListTexts()
{
    setWindowTitle(tr("Car Setting"));
    const QList<int> items = m_settings.items();
    for (int row = 0; row < items.size(); ++row) {
        const int item = items.at(row);
        const QStringList values = XinHangSettings::getSetItemValueTexts(item);
        TableViewItemDatas datas(item, XinHangSettings::getSetItemText(item));
        if (!values.isEmpty()) {
            datas.setValue(TableViewItemDatas::ValueColumn,
                           values.value(m_settings.getSetItemValueIndex(item)));
            datas.setMark(QLatin1String(DropDownMark));
        }
        if (row < m_model->rowCount()) {
            m_model->setItemDatas(row, datas);
        } else {
            m_model->appendItemDatas(datas);
        }
    }
}

void XinHangSettingsWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        resetListTexts();
    }
    OrbMainWindow::changeEvent(event);
}

void XinHangSettingsWindow::onItemListViewClicked(const QModelIndex &index)
{
    const int item = m_model->itemDatas(index.row()).getItemId();
    const QStringList texts = XinHangSettings::getSetItemValueTexts(item);
    if (texts.isEmpty()) {
        return;
    }
    // The unit may take its screen, and this window with it, away while the dialog is open.
    const QPointer<XinHangSettingsWindow> self(this);
    const int chosen =
        showSelectDialog(XinHangSettings::getSetItemText(item), texts, m_settings.getSetItemValueIndex(item));
    if (!self || chosen < 0) {
        return;
    }
    m_settings.choose(item, chosen);
    resetListTexts();
}

int XinHangSettingsWindow::showSelectDialog(const QString &title, const QStringList &texts, int current)
{
    return ChoiceDialog::choose(title, texts, current);
}
