#ifndef PACKAGECHAIN_H
#define PACKAGECHAIN_H

class ProtocolUtils;

/// Tells a long candidate from what a wrong length byte makes of a line: its checksum fits once in 256 times, and it
/// would take along the good packages that it covers.
namespace PackageChain {

/// Candidates below this length, as nearly all packages are, are not looked into. At least the longest package that a
/// box sends all the time, at most what covers two of its packages.
const int LongCandidate = 32;

/// Longest candidate that can be looked into.
const int LongestCandidate = 512;

/// Looks into the candidate whose bytes behind the first one lie from \a begin to before \a end of the hooks'
/// buffer. It is none when good packages stand back to back inside: two, and then nothing to its end but one that
/// the end cuts off; or four, wherever. Returns the place of the first good package then, else -1. \a minimum: fewest
/// bytes from which the hooks tell the size of a package.
int firstOfPackagesInside(ProtocolUtils *hooks, int minimum, int begin, int end);

} // namespace PackageChain

#endif // PACKAGECHAIN_H
