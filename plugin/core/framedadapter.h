#ifndef FRAMEDADAPTER_H
#define FRAMEDADAPTER_H

#include "canbusadapter.h"
#include "framing.h"
#include "packageview.h"

/// A kind of package that several cars have and that needs nothing of the car's class: a row of a command
/// table names it in place of a function.
class PackageHandler
{
public:
    virtual void handle(const PackageView &package) = 0;

protected:
    ~PackageHandler() {}
};

/// A decoder whose packages have the frame \a Frame (see Framing) and whose commands are the rows of a table:
/// the framer's hooks, and the way from a package to its row.
template <class Frame>
class FramedAdapter : public CanBusAdapter
{
public:
    typedef void (FramedAdapter::*Handler)(const PackageView &);

    /// One row of a box's data sheet: a command, the fewest data bytes it needs, and what is done with it.
    struct Command
    {
        constexpr Command(quint8 number, quint8 fewest, Handler function)
            : command(number), minimumN(fewest), handler(function), shared(nullptr)
        {}
        /// \a what is static data and is borrowed.
        constexpr Command(quint8 number, quint8 fewest, PackageHandler *what)
            : command(number), minimumN(fewest), handler(nullptr), shared(what)
        {}

        quint8 command;
        quint8 minimumN;
        Handler handler;
        PackageHandler *shared; // in place of a function
    };

    /// A car's rows, in the order of its data sheet.
    struct CommandTable
    {
        const Command *rows;
        int count;
    };

    /// The rows that this decoder handles.
    virtual CommandTable commands() const
    {
        const CommandTable none = {nullptr, 0};
        return none;
    }

    int getPackageMinSize() override { return Framing::overhead<Frame>(); }
    int findPackageStartSig(int from) override
    {
        return Framing::findStart(recvBuffer, from, Frame::StartByte);
    }
    int getPackageSize(int start) override { return Framing::packageSize<Frame>(recvBuffer, start); }
    bool isAvaliablePackage(int start, int last, int size) override
    {
        return Framing::isGood<Frame>(recvBuffer, start, last, size);
    }

    /// One's complement of the 8-bit sum of \a count bytes from \a start; 0xFF for an empty range or one that
    /// leaves the array.
    static quint8 getPackageCheckSum(const QByteArray &bytes, int start, int count)
    {
        return Framing::checkSum(bytes, start, count);
    }

protected:
    explicit FramedAdapter(QObject *parent) : CanBusAdapter(parent) {}

    /// The data bytes of \a package, which must outlive the view.
    static PackageView viewOf(const QByteArray &package)
    {
        return PackageView(package, Frame::CommandAt, Frame::DataAt, Framing::claimedData<Frame>(package));
    }

    /// Hands \a view to the row of its command, and returns whether there is one that takes it; onOtherPackage() gets
    /// what no row takes.
    bool dispatch(const PackageView &view)
    {
        const CommandTable table = commands();
        for (int i = 0; i < table.count; ++i) {
            const Command &row = table.rows[i];
            if (row.command == view.command() && view.n() >= row.minimumN) {
                if (row.handler) {
                    (this->*row.handler)(view);
                } else {
                    row.shared->handle(view);
                }
                return true;
            }
        }
        onOtherPackage(view);
        return false;
    }

    /// A package that no row takes: unknown, or shorter than its row asks for.
    virtual void onOtherPackage(const PackageView &) {}

    /// A row's function of the car's own class.
    template <class Car>
    static constexpr Handler handler(void (Car::*function)(const PackageView &))
    {
        return static_cast<Handler>(function);
    }

    template <int Rows>
    static CommandTable commandTable(const Command (&rows)[Rows])
    {
        const CommandTable table = {rows, Rows};
        return table;
    }
};

#endif // FRAMEDADAPTER_H
