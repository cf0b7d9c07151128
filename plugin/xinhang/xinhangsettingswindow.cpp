#include "xinhangsettingswindow.h"

#include "choicedialog.h"
#include "xinhangsettings.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QAbstractButton>
#include <QDialog>
#include <QEvent>
#include <QLabel>

namespace {

const char DropDownMark[] = ":/dazhong/set/xiala.png";

QStringList dialogTexts(int item)
{
    return QStringList(XinHangSettings::getSetItemText(item)) + XinHangSettings::getSetItemValueTexts(item);
}

// Gives each part of \a dialog that shows one of \a before the text at its place in \a now.
template <class Part>
void exchangeTexts(const QDialog *dialog, const QStringList &before, const QStringList &now)
{
    const QList<Part *> parts = dialog->findChildren<Part *>();
    for (int i = 0; i < parts.size(); ++i) {
        const QString text = parts.at(i)->text();
        for (int place = 0; place < before.size(); ++place) {
            if (before.at(place) == text) {
                parts.at(i)->setText(now.at(place));
                break;
            }
        }
    }
}

} // namespace

XinHangSettingsWindow::XinHangSettingsWindow(XinHangSettings &settings)
    : m_settings(settings), m_model(new TableViewModel(this)), m_askedItem(0)
{
    resetListTexts();
}

// Few open it, and a view takes as long as all else that the unit builds at start.
void XinHangSettingsWindow::onLoadUiSkin()
{
    TableListView *const view = new TableListView(this);
    view->setObjectName(QLatin1String("itemListView"));
    view->setModel(m_model);
    setCentralWidget(view);
    connect(view, SIGNAL(clicked(QModelIndex)), this, SLOT(onItemListViewClicked(QModelIndex)));
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
            datas.setValue(TableListView::ValueColumn, values.value(m_settings.getSetItemValueIndex(item)));
            datas.setMark(QLatin1String(DropDownMark));
        }
        datas.setBindData(TableItemDelegate::LooksRole,
                          int(values.isEmpty() ? TableItemDelegate::Inert : TableItemDelegate::Changeable));
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
        translateDialog();
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
    m_askedItem = item;
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
    m_shownTexts = QStringList(title) + texts;
    return ChoiceDialog::choose(title, texts, current, &m_dialog);
}

// The dialog is the framework's and has only the texts that it was given. So they are exchanged where they
// are shown, whatever the dialog is built of.
void XinHangSettingsWindow::translateDialog()
{
    if (!m_dialog) {
        return;
    }
    const QStringList texts = dialogTexts(m_askedItem);
    m_dialog->setWindowTitle(texts.first());
    exchangeTexts<QLabel>(m_dialog, m_shownTexts, texts);
    exchangeTexts<QAbstractButton>(m_dialog, m_shownTexts, texts);
    m_shownTexts = texts;
}
