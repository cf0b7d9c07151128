#include "descriptorlines.h"

#include <cerrno>

#include <unistd.h>

DescriptorLines::DescriptorLines(int descriptor, QObject *parent)
    : QObject(parent), m_descriptor(descriptor), m_notifier(descriptor, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &DescriptorLines::read);
}

bool DescriptorLines::takeLine(QString *line)
{
    const Line next = m_lines.dequeue();
    m_notifier.setEnabled(!m_isAtEnd && m_lines.isEmpty());
    *line = next.text;
    return next.isWhole;
}

void DescriptorLines::stop()
{
    m_notifier.setEnabled(false);
    m_isAtEnd = true;
    m_lines.clear();
    m_unread.clear();
}

void DescriptorLines::read()
{
    char bytes[4096];
    const ssize_t count = ::read(m_descriptor, bytes, sizeof bytes);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return;
    }
    if (count > 0) {
        m_unread.append(bytes, int(count));
    } else {
        // The last line may lack its end.
        m_isAtEnd = true;
        m_unread += m_unread.isEmpty() && !m_isSkipping ? "" : "\n";
    }
    split();
    m_notifier.setEnabled(!m_isAtEnd && m_lines.isEmpty());
    Q_EMIT arrived();
}

void DescriptorLines::split()
{
    int begin = 0;
    for (int end = int(m_unread.indexOf('\n')); end >= 0; end = int(m_unread.indexOf('\n', begin))) {
        m_lines.enqueue({QString::fromUtf8(m_unread.mid(begin, end - begin)), !m_isSkipping});
        m_isSkipping = false;
        begin = end + 1;
    }
    m_unread.remove(0, begin);
    if (m_unread.size() > LongestLine) {
        m_unread.clear();
        m_isSkipping = true;
    }
}
