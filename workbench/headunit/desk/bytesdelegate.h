#ifndef BYTESDELEGATE_H
#define BYTESDELEGATE_H

#include "plaincelldelegate.h"

class InspectionModel;

/// Paints a package's data bytes: what is understood is dim, what has changed since the package of the command before
/// has a blue ground, and what has changed without anybody knowing why an amber one.
class BytesDelegate : public PlainCellDelegate
{
    Q_OBJECT

public:
    /// \a model is the one whose cells it paints.
    explicit BytesDelegate(const InspectionModel *model, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    const InspectionModel *m_model;
};

#endif // BYTESDELEGATE_H
