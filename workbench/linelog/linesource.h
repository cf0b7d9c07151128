#ifndef LINESOURCE_H
#define LINESOURCE_H

#include <QByteArray>
#include <QIODevice>

/// The lines of a text of any size. Ends of lines are those of any system; a mark of the byte order is passed over,
/// and of text in two-byte characters the first 256 are read.
class LineSource
{
public:
    /// Bytes of the longest line.
    static constexpr int LongestLine = 64 * 1024;

    enum Result {
        Line,
        TooLong, ///< a line was passed over
        End      ///< of the text; or the device cannot be read, see error()
    };

    /// \a device is not owned.
    explicit LineSource(QIODevice *device) : m_device(device) {}

    /// The next line, without its end. \a line is unchanged unless there is one.
    Result next(QByteArray *line);

    /// Number of the last line, from 1.
    qint64 line() const { return m_line; }
    /// Bytes that lie behind the last line and were read already.
    qint64 waiting() const { return m_buffer.size() - m_front; }
    /// Whether the last line had an end; one without is the last of the text and may have been cut.
    bool isWhole() const { return m_isWhole; }
    /// Why the device could not be read; empty while all is well.
    QString error() const { return m_error; }

private:
    bool fill();
    void narrow(QByteArray *block);

    QIODevice *m_device;
    QByteArray m_buffer;
    int m_front = 0; // what lies before it is done with
    qint64 m_line = 0;
    bool m_isWhole = true;
    bool m_isAtStart = true;
    bool m_isAtEnd = false;
    int m_wideByte = -1;  // the byte of each pair that counts; -1 in a text of single bytes
    bool m_isOdd = false; // a block ended in the middle of a pair
    QString m_error;
};

#endif // LINESOURCE_H
