#ifndef XINHANGBOX_H
#define XINHANGBOX_H

#include <QByteArray>

/// The decoder box as the parts of the adapter see it.
class XinHangBox
{
public:
    /// Queues one package with up to 254 bytes of \a data.
    virtual void send(quint8 command, const QByteArray &data) = 0;

    /// Car type that the box reported, 0 until it did.
    virtual quint16 carType() const = 0;

protected:
    ~XinHangBox() {}
};

#endif // XINHANGBOX_H
