#include "xinhangwire.h"

QByteArray XinHangWire::frame(const QByteArray &commandAndData)
{
    const QByteArray body = QByteArray::fromHex(commandAndData);
    int sum = 0;
    for (const char byte : body) {
        sum += quint8(byte);
    }
    return QByteArray("\xF0") + char(body.size()) + body + char(0xFF - sum % 256);
}
