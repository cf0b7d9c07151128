#ifndef CARVALUES_H
#define CARVALUES_H

#include "packageview.h"

#include <QVariant>

/// A code of a box and the word for it.
struct CodeWord
{
    quint8 code;
    const char *word;
};

const CodeWord OffOn[] = {{0, "off"}, {1, "on"}};
const CodeWord OnOff[] = {{0, "on"}, {1, "off"}};

/// One row of a car's table of named values: what a package tells that no display and no event of the framework
/// takes (trip computer, settings, amplifier, outside temperature). Where it lies in the package, and how it reads:
/// as a word, or as a number with at most one decimal. Tables of words are static data and are borrowed.
class CarValue
{
public:
    /// Bits \a high to \a low of data byte \a at; a code without a word is no value.
    template <int Words>
    static CarValue bits(quint8 command, const char *name, int at, int high, int low,
                         const CodeWord (&words)[Words])
    {
        CarValue value(command, name, at, high, low);
        value.m_words = words;
        value.m_wordCount = Words;
        return value;
    }
    /// The same of a whole byte.
    template <int Words>
    static CarValue words(quint8 command, const char *name, int at, const CodeWord (&words)[Words])
    {
        return bits(command, name, at, 7, 0, words);
    }
    /// Bit \a bit of data byte \a at: "off" or "on".
    static CarValue flag(quint8 command, const char *name, int at, int bit)
    {
        return bits(command, name, at, bit, bit, OffOn);
    }
    /// \a scale times data byte \a at, plus \a offset; a byte outside \a least to \a most is no value. A negative
    /// \a least makes it a signed byte.
    static CarValue number(quint8 command, const char *name, int at, int least, int most, double scale = 1,
                           double offset = 0)
    {
        CarValue value(command, name, at, 7, 0);
        value.m_least = least;
        value.m_most = most;
        value.m_scale = scale;
        value.m_offset = offset;
        return value;
    }

    /// The same value, of packages only whose first data byte is \a item.
    CarValue ofItem(quint8 item) const
    {
        CarValue value(*this);
        value.m_item = item;
        return value;
    }

    const char *name() const { return m_name; }

    /// Whether \a package carries this value.
    bool isIn(const PackageView &package) const;

    /// What \a package says; invalid when that is no value.
    QVariant read(const PackageView &package) const;

private:
    CarValue(quint8 command, const char *name, int at, int high, int low)
        : m_command(command)
        , m_name(name)
        , m_at(at)
        , m_high(high)
        , m_low(low)
        , m_item(AnyItem)
        , m_words(nullptr)
        , m_wordCount(0)
        , m_least(0)
        , m_most(0)
        , m_scale(1)
        , m_offset(0)
    {}

    enum { AnyItem = -1 };

    quint8 m_command;
    const char *m_name;
    int m_at;
    int m_high;
    int m_low;
    int m_item;
    const CodeWord *m_words; // null for a number
    int m_wordCount;
    int m_least;
    int m_most;
    double m_scale;
    double m_offset;
};

#endif // CARVALUES_H
