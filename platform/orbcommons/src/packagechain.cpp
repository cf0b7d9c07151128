#include "packagechain.h"

#include "protocolutils.h"

#include <QtGlobal>

namespace {

const int ChainToTheEnd = 2; // packages
const int ChainAnywhere = 4;

// How many good packages stand back to back from one place on.
struct Chain
{
    short packages;
    bool reachesEnd;
};

} // namespace

int PackageChain::firstOfPackagesInside(ProtocolUtils *hooks, int minimum, int begin, int end)
{
    short starts[LongestCandidate]; // places behind begin
    Chain chains[LongestCandidate + 1] = {};
    const int length = qMin(end - begin, int(LongestCandidate));
    int count = 0;
    for (int at = 0; at < length && count < LongestCandidate; ++at) {
        const int found = hooks->findPackageStartSig(begin + at) - begin;
        if (found < at || found >= length) {
            break;
        }
        at = found;
        starts[count++] = short(found);
    }

    // Backwards each start is asked once, whatever the bytes are.
    chains[length].reachesEnd = true;
    int first = -1;
    bool isChain = false;
    while (count > 0) {
        const int at = starts[--count];
        const int room = length - at;
        const int size = room >= minimum ? hooks->getPackageSize(begin + at) : LongestCandidate;
        if (size > room) {
            chains[at].reachesEnd = true; // cut off
        } else if (size >= minimum && hooks->isAvaliablePackage(begin + at, begin + at + size - 1, size)) {
            const Chain &rest = chains[at + size];
            chains[at].packages = short(rest.packages + 1);
            chains[at].reachesEnd = rest.reachesEnd;
            first = begin + at;
            isChain =
                isChain || chains[at].packages >= (chains[at].reachesEnd ? ChainToTheEnd : ChainAnywhere);
        }
    }
    return isChain ? first : -1;
}
