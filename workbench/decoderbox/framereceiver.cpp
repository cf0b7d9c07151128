#include "framereceiver.h"

namespace {
const int CandidateLifetimeMs = 100; // the longest package takes 67 ms on the slowest line
const quint8 Acknowledgement = 0xFF;
} // namespace

FrameReceiver::FrameReceiver(const FrameFormat &format, QObject *parent) : QObject(parent), m_framer(format)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(CandidateLifetimeMs);
    connect(&m_patience, &QTimer::timeout, this, &FrameReceiver::giveUpWaiting);
}

void FrameReceiver::feed(const QByteArray &bytes)
{
    m_framer.feed(bytes, 0); // patience is the timer's
    work();
}

void FrameReceiver::clear()
{
    m_framer.clear();
    m_patience.stop();
}

void FrameReceiver::giveUpWaiting()
{
    m_framer.giveUp();
    work();
}

void FrameReceiver::work()
{
    for (LinePiece piece; m_framer.next(&piece);) {
        if (piece.kind == LinePiece::Package || piece.kind == LinePiece::BadPackage) {
            m_patience.stop();
        }
        if (piece.kind == LinePiece::Package) {
            Q_EMIT packageReceived(m_framer.format().package(piece.bytes), piece.bytes);
        } else if (piece.kind == LinePiece::BadPackage) {
            Q_EMIT badChecksum(piece.bytes);
        } else if (piece.kind == LinePiece::Answer && quint8(piece.bytes.at(0)) == Acknowledgement) {
            Q_EMIT acknowledged();
        }
    }
    if (m_framer.waiting() > 0 && !m_patience.isActive()) {
        m_patience.start();
    }
}
