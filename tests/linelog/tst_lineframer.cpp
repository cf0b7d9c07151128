// Packages in the bytes of a line, whatever the chunks are in which they come.

#include "lineframer.h"
#include "linepackages.h"

#include <QStringList>
#include <QTest>
#include <QVector>

#include <random>

class TestLineFramer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_data();
    void pieces();
    void everyByteComesOutOnce();
    void formatOfALog();
};

// Chunks "TIME:HEX", parted by blanks, and the pieces that come of them.
void TestLineFramer::pieces_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("chunks");
    QTest::addColumn<QString>("pieces");
    const auto row = [](const char *name, const char *chunks, const char *pieces,
                        const char *format = "raise") { QTest::newRow(name) << format << chunks << pieces; };
    row("one package", "1:2e8101017c", "1:package:2e8101017c");
    row("two and an answer", "1:2e8101017cff2e240100da",
        "1:package:2e8101017c 1:answer:ff 1:package:2e240100da");
    row("in parts", "1:2e81 2:01 3:017c", "3:package:2e8101017c");
    row("noise is one piece", "1:001122 2:33", "1:skipped:001122 2:skipped:33");
    row("bad, then good", "1:2e8101007c2e8101017c",
        "1:bad:2e8101007c 1:skipped:2e8101007c 1:package:2e8101017c");
    row("good inside of a bad one", "1:2e77052e8101017c00",
        "1:bad:2e77052e8101017c00 1:skipped:2e7705 "
        "1:package:2e8101017c 1:skipped:00");
    row("no answers inside of a bad one", "1:2e8102ffff00ff",
        "1:bad:2e8102ffff00 1:skipped:2e8102ffff00 1:answer:ff");
    row("late rest", "1:2e81 600000:01017c 600001:2e8101017c",
        "1:skipped:2e81 600000:skipped:01017c 600001:package:2e8101017c");
    row("late rest begins a package", "1:2e 600000:2e8101017c", "1:skipped:2e 600000:package:2e8101017c");
    row("in time", "1:2e81 500000:01017c", "500000:package:2e8101017c");
    row("cut at the end", "1:2e8101", "1:skipped:2e8101");
    row("other frame", "1:f00281017d", "1:answer:f0 1:skipped:0281017d");
    row("XinHang", "1:f00281017d 2:ff", "1:package:f00281017d 2:skipped:ff", "xinhang");
}

void TestLineFramer::pieces()
{
    QFETCH(QString, format);
    QFETCH(QString, chunks);
    QFETCH(QString, pieces);
    const char *const names[] = {"package", "answer", "bad", "skipped"};
    LineFramer framer(*FrameFormat::find(format));
    QStringList found;
    const auto fetch = [&] {
        for (LinePiece piece; framer.next(&piece);) {
            found << QString("%1:%2:%3")
                         .arg(piece.microseconds)
                         .arg(names[piece.kind], QString(piece.bytes.toHex()));
        }
    };
    for (const QString &chunk : chunks.split(' ')) {
        framer.feed(QByteArray::fromHex(chunk.section(':', 1).toLatin1()),
                    chunk.section(':', 0, 0).toLongLong());
        fetch();
    }
    framer.giveUp();
    fetch();
    QCOMPARE(found.join(' '), pieces);
}

void TestLineFramer::everyByteComesOutOnce()
{
    std::mt19937 random(1);
    for (int run = 0; run < 200; ++run) {
        LineFramer framer(run % 2 ? FrameFormat::raise() : FrameFormat::xinHang());
        QByteArray in;
        QByteArray out;
        qint64 time = 0;
        qint64 last = 0;
        for (int chunk = 0; chunk < 50; ++chunk) {
            QByteArray bytes(int(random() % 40), '\0');
            for (char &byte : bytes) {
                const unsigned int kind = random() % 4;
                byte = kind == 0   ? '\x2E'
                       : kind == 1 ? '\xF0'
                       : kind == 2 ? char(random() % 9)
                                   : char(random());
            }
            in += bytes;
            framer.feed(bytes, time += qint64(random() % 300000));
            if (chunk == 49) {
                framer.giveUp();
            }
            for (LinePiece piece; framer.next(&piece);) {
                if (piece.kind != LinePiece::BadPackage) {
                    out += piece.bytes;
                    QVERIFY(piece.microseconds >= last);
                    last = piece.microseconds;
                }
            }
        }
        QCOMPARE(out.toHex(), in.toHex());
        QCOMPARE(framer.waiting(), 0);
    }
}

void TestLineFramer::formatOfALog()
{
    QVector<LineRecord> records;
    QCOMPARE(LinePackages::formatOf(records).start, quint8(0x2E));
    // An answer 0xF0 before a package looks like the other frame's beginning.
    records << LineRecord{1, LineRecord::ToUnit, QByteArray::fromHex("f02e8101017c"), {}};
    QCOMPARE(LinePackages::formatOf(records).start, quint8(0x2E));
    records << LineRecord{
        2, LineRecord::ToBox, FrameFormat::xinHang().frame({0x81, QByteArray(9, '\1')}), {}};
    QCOMPARE(LinePackages::formatOf(records).start, quint8(0xF0));
}

QTEST_GUILESS_MAIN(TestLineFramer)
#include "tst_lineframer.moc"
