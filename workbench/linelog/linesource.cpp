#include "linesource.h"

#include <cstring>

namespace {
const int BlockSize = 64 * 1024;
} // namespace

LineSource::Result LineSource::next(QByteArray *line)
{
    bool isTooLong = false;
    int searched = 0; // bytes from the front in which there is no end of line
    for (;;) {
        const char *const front = m_buffer.constData() + m_front;
        const int available = int(m_buffer.size()) - m_front;
        const void *const end = std::memchr(front + searched, '\n', size_t(available - searched));
        if (end) {
            const int size = int(static_cast<const char *>(end) - front);
            m_front += size + 1;
            ++m_line;
            m_isWhole = true;
            if (isTooLong || size > LongestLine) {
                return TooLong;
            }
            *line = QByteArray(front, size > 0 && front[size - 1] == '\r' ? size - 1 : size);
            return Line;
        }
        searched = available;
        if (available > LongestLine) {
            isTooLong = true;
            m_front = int(m_buffer.size());
            searched = 0;
        }
        if (!fill()) {
            break;
        }
    }
    const QByteArray rest = m_buffer.mid(m_front);
    m_front = int(m_buffer.size());
    if (rest.isEmpty() && !isTooLong) {
        return End;
    }
    ++m_line;
    m_isWhole = false;
    if (isTooLong) {
        return TooLong;
    }
    *line = rest;
    return Line;
}

// Another block behind what is left; false at the end of the text.
bool LineSource::fill()
{
    while (!m_isAtEnd) {
        QByteArray block(BlockSize, Qt::Uninitialized);
        const qint64 size = m_device->read(block.data(), block.size());
        if (size <= 0) {
            m_isAtEnd = true;
            if (size < 0) {
                m_error = m_device->errorString();
            }
            break;
        }
        block.truncate(int(size));
        narrow(&block);
        if (!block.isEmpty()) {
            m_buffer = m_buffer.mid(m_front) + block;
            m_front = 0;
            return true;
        }
    }
    return false;
}

// Takes the mark of the byte order off the first block, and every second byte off a text of two-byte characters.
void LineSource::narrow(QByteArray *block)
{
    if (m_isAtStart) {
        m_isAtStart = false;
        if (block->startsWith("\xEF\xBB\xBF")) {
            block->remove(0, 3);
        } else if (block->startsWith("\xFF\xFE") || block->startsWith("\xFE\xFF")) {
            m_wideByte = block->at(0) == '\xFF' ? 0 : 1;
            block->remove(0, 2);
        }
    }
    if (m_wideByte < 0) {
        return;
    }
    int kept = 0;
    for (int i = 0; i < block->size(); ++i) {
        if (int(m_isOdd) == m_wideByte) {
            (*block)[kept++] = block->at(i);
        }
        m_isOdd = !m_isOdd;
    }
    block->truncate(kept);
}
