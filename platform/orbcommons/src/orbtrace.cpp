#include "orbtrace.h"

namespace OrbTrace {

OrbTraceListener *listener = nullptr;

OrbTraceListener *setListener(OrbTraceListener *next)
{
    OrbTraceListener *previous = listener;
    listener = next;
    return previous;
}

} // namespace OrbTrace
