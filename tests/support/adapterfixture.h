#ifndef ADAPTERFIXTURE_H
#define ADAPTERFIXTURE_H

#include "ptybox.h"
#include "raisewire.h"
#include "testmain.h"
#include "tracerecorder.h"

#include "canbusadapter.h"

/// One decoder adapter on a pseudo-terminal, its calls on the framework recorded. Built inside a test
/// function or initTestCase (then shared by the rows of a table); needs an OrbApplication, see
/// CANBUS_TEST_MAIN.
class AdapterFixture
{
public:
    AdapterFixture();
    ~AdapterFixture();

    PtyBox box;
    TraceRecorder trace;

    /// Builds an adapter and starts it on the pseudo-terminal: construct() alone does not open the line yet,
    /// so that product values read later than the constructor can still be set. The fixture owns it.
    template <class Adapter>
    Adapter *construct()
    {
        Adapter *const adapter = new Adapter;
        take(adapter);
        return adapter;
    }
    /// The same with an adapter that was built elsewhere.
    CanBusAdapter *take(CanBusAdapter *adapter)
    {
        m_adapter = adapter;
        return adapter;
    }
    void open();
    /// The same on another device.
    void openPort(const QString &path);

    /// construct(), open(), and what the unit says at start-up awaited and forgotten.
    template <class Adapter>
    Adapter *start()
    {
        Adapter *const adapter = construct<Adapter>();
        open();
        settle();
        return adapter;
    }

    /// Waits until onInited has run and the line is quiet, then forgets what was recorded and received.
    void settle();

    /// Sends packages in one go and returns what the unit then called, in order. A Raise box's package must be
    /// acknowledged with one 0xFF before anything else happens, on the line as well; a breach is reported as
    /// a line of its own. The acknowledgements are left out of the result.
    QStringList exchange(const QByteArrayList &packages);

    /// exchange() of "20 01 01 | 20 01 00": commands and data in hexadecimal, packages apart by bars, in the
    /// frame of the adapter's box.
    QStringList exchange(const char *packages);

private:
    CanBusAdapter *m_adapter = nullptr;
};

#endif // ADAPTERFIXTURE_H
