#include "protocolutils_p.h"

#include "orbtrace.h"

#include <cstring>

// What becomes of the bytes: recvBuffer, from the cursor on, is cut into packages.

int ProtocolUtils::Private::compact(QByteArray *buffer)
{
    const int passed = cursor - 1;
    if (passed > 0) {
        const int left = int(buffer->size()) - passed;
        char *const bytes = buffer->data();
        memmove(bytes, bytes + passed, size_t(left));
        buffer->resize(left);
        streamBase += passed;
        cursor = 1;
    }
    buffer->reserve(BufferSize);
    return int(buffer->size());
}

// A package that lost a byte ends with the next one's start byte for its checksum, once in 256 times. What follows
// such an end is then no start, and the end is one.
bool ProtocolUtils::Private::isShortCandidate(int start) const
{
    return parent->findPackageStartSig(start) == start &&
           parent->getPackageSize(start) < PackageChain::LongCandidate;
}

// First of the good packages inside the candidate at \a start, when it is none; else -1. What lies in one that was
// none is not looked into again, so that each byte is a bounded number of times.
int ProtocolUtils::Private::lookInto(int start, int size)
{
    if (streamBase + start < lookedInto) {
        return -1;
    }
    const int first = PackageChain::firstOfPackagesInside(parent, minimum, start + 1, start + size);
    if (first >= 0) {
        lookedInto = streamBase + start + size;
    }
    return first;
}

// Emits every good package between the cursor and the end of recvBuffer. A slot may run an event loop of its
// own in which this runs again: the cursor moves past a package before it is emitted, and nothing about the
// buffer is remembered across an emission.
void ProtocolUtils::framePackages()
{
    Private *const p = m_d;
    const int minimum = p->minimum;
    int cursor = p->cursor;
    int size = p->candidateSize;
    p->candidateSize = 0;
    p->needed = minimum;
    for (;;) {
        if (size == 0) {
            if (recvBuffer.size() - cursor < minimum) {
                break;
            }
            const int start = findPackageStartSig(cursor);
            if (start != cursor) {
                const bool endedInStart = p->behindPackage && p->isShortCandidate(cursor - 1);
                p->behindPackage = false;
                const int next = start < cursor ? int(recvBuffer.size()) : start;
                cursor = endedInStart ? cursor - 1 : next;
                continue;
            }
            size = getPackageSize(cursor);
        }
        const bool possible = size >= minimum && size <= Private::LongestPackage;
        if (possible && recvBuffer.size() - cursor < size) {
            p->candidateSize = size;
            p->needed = size;
            break;
        }
        int next = cursor + 1; // a bad candidate costs its start byte only: a good package may lie inside it
        if (possible && isAvaliablePackage(cursor, cursor + size - 1, size)) {
            const int inside = size >= PackageChain::LongCandidate ? p->lookInto(cursor, size) : -1;
            if (inside < 0) {
                p->cursor = cursor + size;
                p->behindPackage = true;
                emitPackage(recvBuffer.constData() + cursor, size);
                cursor = p->cursor;
                size = 0;
                continue;
            }
            next = inside;
        }
        cursor = next;
        p->behindPackage = false;
        size = 0;
    }
    p->cursor = cursor;
}

inline void ProtocolUtils::emitPackage(const char *bytes, int size)
{
    Private *const p = m_d;
    if (p->special || OrbTrace::listener) {
        emitPackageWatched(bytes, size);
        return;
    }
    // One array carries every package while no receiver keeps it; it has room for the longest.
    QByteArray &emission = p->emission;
    if (!emission.isDetached()) {
        emission = QByteArray();
        emission.reserve(Private::LongestPackage);
    }
    if (emission.size() != size) {
        emission.resize(size);
    }
    memcpy(const_cast<char *>(emission.constData()), bytes, size_t(size));
    p->special |= Private::Emitting;
    Q_EMIT recvProtocolData(emission);
    p->special &= ~Private::Emitting;
}

// Somebody watches, or a slot further up still reads the emission array: this package gets an array of its
// own.
void ProtocolUtils::emitPackageWatched(const char *bytes, int size)
{
    const QByteArray package(bytes, size);
    if (OrbTrace::listener) {
        OrbTrace::listener->called("ProtocolUtils", "recvProtocolData", QVariantList() << package);
    }
    if (m_d->special & Private::Logging) {
        m_d->log("recv", package);
    }
    Q_EMIT recvProtocolData(package);
}

// Whether a whole good package lies behind the first byte of the unfinished candidate at the cursor.
bool ProtocolUtils::holdsPackageBehind()
{
    const int held = int(recvBuffer.size());
    for (int from = m_d->cursor + 1; held - from >= m_d->minimum; ++from) {
        const int start = findPackageStartSig(from);
        if (start < from || held - start < m_d->minimum) {
            return false;
        }
        const int size = getPackageSize(start);
        if (size >= m_d->minimum && size <= qMin(held - start, int(Private::LongestPackage)) &&
            isAvaliablePackage(start, start + size - 1, size)) {
            return true;
        }
        from = start;
    }
    return false;
}
