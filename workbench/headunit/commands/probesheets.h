#ifndef PROBESHEETS_H
#define PROBESHEETS_H

#include <QString>

/// `probe --all`: the sheets of all boxes, and the matrix of what the cars can do.
namespace ProbeSheets {

struct Order
{
    QString plugin; ///< empty for this program's own
    QString folder; ///< there is one sheet a type, "7.md", and the matrix, "README.md"
    QString drives; ///< of the golden traces
    int type = 0;   ///< the sheet of this one only; 0 for all
};

/// Writes them. There must be no application object yet: each type has a process of its own, since the plug-in
/// builds one decoder in its life. False, with one sentence in \a error, when one cannot be written.
bool write(const Order &order, QString *error);

} // namespace ProbeSheets

#endif // PROBESHEETS_H
