#ifndef ORBKEYFILTER_H
#define ORBKEYFILTER_H

/// Sees every key of the head unit before the system does. Registered with OrbApplication::addKeyFilter; not
/// owned by the framework. Keys injected with OrbApplication::simulateKey do not pass the filters again.
class OrbKeyFilter
{
public:
    virtual ~OrbKeyFilter() {}

    /// \a key: key code; \a pressed: false on release; \a held: true for an auto-repeat of a held key.
    /// Returns true to consume the key: neither later filters nor the plug-ins see it.
    virtual bool filterKey(unsigned int key, bool pressed, bool held) = 0;
};

#endif // ORBKEYFILTER_H
