#ifndef PAINTEDTEXTS_H
#define PAINTEDTEXTS_H

#include <QRectF>
#include <QStringList>

class QWidget;

/// What screens write, taken where it is painted: labels, buttons, rows of a list, and what a widget draws by itself.
namespace PaintedTexts {

/// The texts in sight of \a shown and what lies in it that are cut: wider or higher than the place in which they are
/// painted, shortened by an ellipsis, or hidden by a parent. Rows of a TableListView are all in sight. Each as
/// "OBJECT or CLASS: TEXT".
QStringList cut(const QWidget *shown);

/// The texts that are not in the pseudo language: what nobody handed to a translator. \a allowed is a regular
/// expression of what needs no translation.
QStringList untranslated(const QWidget *shown, const QString &allowed);

} // namespace PaintedTexts

#endif // PAINTEDTEXTS_H
