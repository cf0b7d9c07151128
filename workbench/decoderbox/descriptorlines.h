#ifndef DESCRIPTORLINES_H
#define DESCRIPTORLINES_H

#include <QByteArray>
#include <QObject>
#include <QQueue>
#include <QSocketNotifier>
#include <QString>

/// The lines that arrive on a file descriptor, read without waiting for them. No more is read ahead than a
/// few lines, so an input of any length needs little room.
class DescriptorLines : public QObject
{
    Q_OBJECT

public:
    /// Bytes of the longest line.
    static constexpr int LongestLine = 64 * 1024;

    /// \a descriptor stays the caller's and must outlive the object.
    explicit DescriptorLines(int descriptor, QObject *parent = nullptr);

    /// Takes the next line, without its end; only while hasLine(). False for a line that was too long.
    bool takeLine(QString *line);
    bool hasLine() const { return !m_lines.isEmpty(); }

    /// No line is left and none will come.
    bool isAtEnd() const { return m_isAtEnd && m_lines.isEmpty(); }

    /// Reads no further: what is left of the input counts as its end.
    void stop();

Q_SIGNALS:
    /// hasLine() or isAtEnd() may have become true.
    void arrived();

private:
    struct Line
    {
        QString text;
        bool isWhole;
    };

    void read();
    void split();

    int m_descriptor;
    QByteArray m_unread;       // the line that is not yet whole
    bool m_isSkipping = false; // the rest of a line that was too long
    bool m_isAtEnd = false;
    QQueue<Line> m_lines;
    QSocketNotifier m_notifier;
};

#endif // DESCRIPTORLINES_H
