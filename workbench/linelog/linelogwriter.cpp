#include "linelogwriter.h"

#include <QFileDevice>

bool LineLogWriter::begin(const LineLogHeader &header)
{
    putHeader(header);
    return m_error.isEmpty();
}

bool LineLogWriter::write(const LineRecord &record)
{
    if (m_error.isEmpty()) {
        putRecord(record);
    }
    return m_error.isEmpty();
}

bool LineLogWriter::finish()
{
    if (m_error.isEmpty()) {
        putEnd();
    }
    // A file keeps back what a full disk does not take until it is flushed.
    QFileDevice *const file = qobject_cast<QFileDevice *>(m_device.get());
    if (m_error.isEmpty() && file && !file->flush()) {
        m_error = file->errorString();
    }
    return m_error.isEmpty();
}

void LineLogWriter::put(const QByteArray &bytes)
{
    if (m_error.isEmpty() && m_device->write(bytes) != bytes.size()) {
        m_error = m_device->errorString();
    }
}
