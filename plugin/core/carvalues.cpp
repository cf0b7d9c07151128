#include "carvalues.h"

bool CarValue::isIn(const PackageView &package) const
{
    return package.command() == m_command && m_at < package.n() &&
           (m_item == AnyItem || package.d(0) == m_item);
}

QVariant CarValue::read(const PackageView &package) const
{
    const int code = package.bits(m_at, m_high, m_low);
    for (int i = 0; i < m_wordCount; ++i) {
        if (m_words[i].code == code) {
            return QString::fromLatin1(m_words[i].word);
        }
    }
    const int number = m_least < 0 ? qint8(code) : code;
    if (m_words || number < m_least || number > m_most) {
        return QVariant();
    }
    return qRound((number * m_scale + m_offset) * 10) / 10.0;
}
