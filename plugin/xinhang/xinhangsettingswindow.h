#ifndef XINHANGSETTINGSWINDOW_H
#define XINHANGSETTINGSWINDOW_H

#include "orbmainwindow.h"

#include <QPointer>
#include <QStringList>

class QDialog;
class QModelIndex;
class TableViewModel;
class XinHangSettings;

/// "Car Setting": one row per setting with its value; a tap on a row offers the values to choose from.
class XinHangSettingsWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    /// \a settings must outlive the window.
    explicit XinHangSettingsWindow(XinHangSettings &settings);

    /// Writes title, texts and values of all rows anew, in the current language; new items get their row.
    void resetListTexts();

protected:
    void onLoadUiSkin() override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onItemListViewClicked(const QModelIndex &index);

private:
    /// The user's choice, -1 for none. Runs an event loop of its own.
    int showSelectDialog(const QString &title, const QStringList &texts, int current);
    void translateDialog();

    XinHangSettings &m_settings;
    TableViewModel *m_model;
    QPointer<QDialog> m_dialog; // the open one,
    int m_askedItem;            // the item that it asks for,
    QStringList m_shownTexts;   // and what it was given: its title, then the values
};

#endif // XINHANGSETTINGSWINDOW_H
