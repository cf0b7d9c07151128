#ifndef FLOWLAYOUT_H
#define FLOWLAYOUT_H

#include <QLayout>
#include <QList>

/// Places its widgets from left to right, each as large as it wants to be, and wraps to the next line where
/// the width ends.
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
    /// Height that \a rect's width needs; with \a apply the items are placed as well.
    int layOut(const QRect &rect, bool apply) const;

    QList<QLayoutItem *> m_items;
    const int m_horizontalSpacing;
    const int m_verticalSpacing;
};

#endif // FLOWLAYOUT_H
