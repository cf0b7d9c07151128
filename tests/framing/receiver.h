#ifndef RECEIVER_H
#define RECEIVER_H

#include "raise/raiseadapter.h"

#include <QByteArrayList>

#include <functional>

/// The framer with the hooks of the Raise frame, keeping what it delivers instead of decoding it.
class Receiver : public RaiseAdapter
{
public:
    void onRecvMcuProtocol(const QByteArray &package) override
    {
        packages.append(QByteArray(package.constData(), package.size()));
        if (onPackage) {
            onPackage(package);
        }
    }

    int bufferSize() const { return recvBuffer.size(); }
    QByteArray buffer() const { return recvBuffer; }

    QByteArrayList packages;
    std::function<void(const QByteArray &)> onPackage;
};

#endif // RECEIVER_H
