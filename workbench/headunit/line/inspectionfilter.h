#ifndef INSPECTIONFILTER_H
#define INSPECTIONFILTER_H

#include "inspectionrow.h"

#include <QVector>

#include <functional>

/// Which rows of an inspection are wanted: words with blanks between them, all of which must fit, in any case.
///
///     cmd=0x28,0x29     one of these commands, or names of them: cmd=climate
///     dir=in dir=out    towards the unit, towards the box
///     bad               a wrong checksum, or bytes that are no package
///     changed           another one than the package of its command before
///     explained         nothing is left to be found out about it
///     call=setTemp*     it caused such a call; * and ? stand for anything, with or without the object's name
///     screen=Air*       it opened such a window or dialog, or changed it
///     hex=2e28          its bytes hold these
///     d2=0x1f  d0.6=1   value of data byte 2, of bit 6 of data byte 0
///     ack>20 ack<20     milliseconds until it was acknowledged; ack=none for never
///     t>12.5 t<20       seconds of the log
///     !WORD             the word does not fit
class InspectionFilter
{
public:
    /// Everything is wanted.
    InspectionFilter() = default;

    /// Reads \a text. False, with one sentence in \a error and nothing changed, when it cannot be read.
    bool parse(const QString &text, QString *error);

    bool matches(const InspectionRow &row) const;
    bool isEmpty() const { return m_terms.isEmpty(); }

private:
    using Term = std::function<bool(const InspectionRow &)>;

    static Term term(const QString &word, QString *error);

    QVector<Term> m_terms;
};

#endif // INSPECTIONFILTER_H
