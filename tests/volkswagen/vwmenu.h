#ifndef VWMENU_H
#define VWMENU_H

#include <QList>
#include <QStringList>

/// The car's settings menu as the box's side knows it, written apart from the plug-in so that it can judge
/// it.
namespace VwMenu {

enum Kind : char {
    Heading = 'H',
    Link = 'L', ///< item is the page that it opens
    Switch = 'S',
    Options = 'O', ///< texts by "|", codes by "|" where they are not 0, 1, 2 ...
    Number = 'N',  ///< texts: "minimum|maximum|step|unit"
    Action = 'A',
    Confirmed = 'C',
    Reading = 'R'
};

struct Row
{
    int page;
    Kind kind;
    int item;
    const char *label;
    const char *texts;
    const char *codes;
    int subType, byte, shift, width; ///< where the reply 0x40 carries the value; width 0: nowhere

    QStringList options() const { return QString(texts).split('|'); }
    /// Number on the wire of option \a index.
    int code(int index) const;
    /// Text of the value \a code of an option row; empty for none.
    QString textOf(int code) const;
    /// A reply that says \a code, the other bits 0.
    QByteArray reply(int code) const;
};

/// Every row, page after page, in the order of the screen.
const QList<Row> &rows();
QList<Row> rowsOf(int page);

} // namespace VwMenu

#endif // VWMENU_H
