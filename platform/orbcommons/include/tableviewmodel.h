#ifndef TABLEVIEWMODEL_H
#define TABLEVIEWMODEL_H

#include "orbglobal.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

/// One row of a settings list, a value: an item id, a label with an icon (column 0), a secondary text
/// (column 1), a value in column 2 (a text, or a bool, which is drawn as a switch), an optional mark behind
/// the value, and bind data, values of the list's owner under roles of its own.
class ORB_EXPORT TableViewItemDatas
{
public:
    enum Column { TextColumn = 0, SecondColumn = 1, ValueColumn = 2, ColumnCount = 3 };

    /// \a itemId: the owner's number of the row, -1 for none.
    explicit TableViewItemDatas(int itemId = -1, const QString &text = QString(),
                                const QString &icon = QString());

    void setItemId(int itemId) { m_itemId = itemId; }
    int getItemId() const { return m_itemId; }

    /// Value of \a column: a text, or a bool for a switch. Columns outside 0..2 are ignored, or read invalid.
    void setValue(int column, const QVariant &value);
    QVariant value(int column) const;

    QString text() const { return m_values[TextColumn].toString(); }
    void setText(const QString &text) { m_values[TextColumn] = text; }

    /// Resource path of the icon before the label; empty for none.
    void setIcon(const QString &path) { m_icon = path; }
    QString icon() const { return m_icon; }

    /// Resource path of the mark behind the value; empty for none. ":/orb/icons/dropdown.png" is a drop-down
    /// sign in the unit"s looks.
    void setMark(const QString &path) { m_mark = path; }
    QString mark() const { return m_mark; }

    /// True when column 2 holds a bool.
    bool isSwitch() const;

    /// A heading is drawn small, without a touch reaction. Rows are none by default.
    void setHeading(bool heading) { m_heading = heading; }
    bool isHeading() const { return m_heading; }

    /// Values under the owner's roles (4096 and up); an invalid variant for a role that is not set.
    void setBindData(int role, const QVariant &value) { m_bindData.insert(role, value); }
    QVariant bindData(int role) const { return m_bindData.value(role); }

    /// Whether all of two rows is the same.
    bool operator==(const TableViewItemDatas &other) const;

private:
    int m_itemId;
    bool m_heading;
    QVariant m_values[ColumnCount];
    QString m_icon;
    QString m_mark;
    QHash<int, QVariant> m_bindData;
};

/// List model of TableViewItemDatas rows, three columns. data() answers Qt::DisplayRole with the cell's text
/// (empty for a switch), Qt::CheckStateRole of a switch, Qt::DecorationRole with the icon, and every role
/// from 4096 with the row's bind data.
class ORB_EXPORT TableViewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableViewModel(QObject *parent = nullptr);
    ~TableViewModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// The row's record; a default one for a row that does not exist.
    TableViewItemDatas itemDatas(int row) const;

    /// Replaces a row's record and repaints it; a row that does not exist is ignored.
    void setItemDatas(int row, const TableViewItemDatas &datas);

    /// Replaces one cell's value; rows and columns that do not exist are ignored.
    void setCellValue(int row, int column, const QVariant &value);

    void appendItemDatas(const TableViewItemDatas &datas);

    /// Removes \a count rows from \a row on, as far as they exist.
    void removeItemDatas(int row, int count);
    void clear();

    /// The first row with that item id, -1 when there is none.
    int rowOfItem(int itemId) const;

private:
    QList<TableViewItemDatas> m_rows;
};

#endif // TABLEVIEWMODEL_H
