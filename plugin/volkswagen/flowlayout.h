#ifndef FLOWLAYOUT_H
#define FLOWLAYOUT_H

#include <QLayout>
#include <QList>

/// Places its widgets from left to right and wraps to the next line where the width ends. All are equally
/// wide and stand in columns: as many as the widest widget allows, and no more than give lines of equal
/// length. Where that takes more than three lines there are more columns, and a widget that is too wide for
/// one takes two.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// All in pixels.
    FlowLayout(int margin, int horizontalSpacing, int verticalSpacing, QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Columns in \a width pixels.
    int columnsIn(int width) const;
    /// Height that \a rect's width needs; with \a apply the items are placed as well.
    int layOut(const QRect &rect, int spacing, bool apply) const;

    QList<QLayoutItem *> m_items;
    const int m_horizontalSpacing;
    const int m_verticalSpacing;
};

#endif // FLOWLAYOUT_H
