#include "raisewire.h"

namespace {

quint8 checksum(const QByteArray &commandLengthData)
{
    int sum = 0;
    for (const char byte : commandLengthData) {
        sum += quint8(byte);
    }
    return quint8(0xFF - sum % 256);
}

} // namespace

QByteArray RaiseWire::frame(quint8 command, const QByteArray &data)
{
    QByteArray body;
    body.append(char(command)).append(char(data.size())).append(data);
    return QByteArray(".") + body + char(checksum(body));
}

QByteArray RaiseWire::frame(const QByteArray &commandAndData)
{
    const QByteArray bytes = QByteArray::fromHex(commandAndData);
    return frame(quint8(bytes.at(0)), bytes.mid(1));
}

RaiseWire::Traffic RaiseWire::parse(const QByteArray &sent)
{
    Traffic traffic;
    for (int at = 0; at < sent.size();) {
        const int size = sent.at(at) == '.' && sent.size() - at >= 4 ? quint8(sent.at(at + 2)) + 4 : 1;
        const QByteArray piece = sent.mid(at, size);
        at += size;
        if (piece == "\xFF") {
            ++traffic.acknowledgements;
        } else if (piece.size() == size && size > 1 &&
                   piece == frame(quint8(piece.at(1)), piece.mid(3, size - 4))) {
            traffic.packages << (piece.mid(1, 1) + piece.mid(3, size - 4)).toHex(' ');
        } else {
            traffic.faults << piece.toHex(' ');
        }
    }
    return traffic;
}
