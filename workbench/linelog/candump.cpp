#include "candump.h"

namespace {

const char ToBoxName[] = "unit"; // who speaks
const char ToUnitName[] = "box";
const int ClassicSize = 8; // data bytes of a frame that is not CAN FD
const int LongestData = 64;
const quint32 MostIdentifier = 0xFF; // a command is one byte

using LogText::Cursor;

bool takeIdentifier(const QByteArray &digits, quint32 *identifier)
{
    bool ok = false;
    *identifier = digits.toUInt(&ok, 16);
    return ok && (digits.size() == 3 || digits.size() == 8);
}

bool readData(QByteArray digits, Candump::Line *read)
{
    digits.replace('.', "");
    return digits.isEmpty() || LogText::readHex(digits, &read->data);
}

// "021#0500", "021##00500", "021#R", "021#R8", with the raw length "_9" at the end or not.
bool readCompact(const QByteArray &frame, Candump::Line *read)
{
    const int sign = int(frame.indexOf('#'));
    if (!takeIdentifier(frame.left(sign), &read->identifier)) {
        return false;
    }
    QByteArray data = frame.mid(sign + 1);
    const int rawLength = int(data.indexOf('_'));
    data = rawLength < 0 ? data : data.left(rawLength);
    if (data.startsWith('#')) {
        return data.size() > 1 && LogText::hexDigit(data.at(1)) >= 0 && readData(data.mid(2), read);
    }
    read->isRemote = data.startsWith('R');
    return read->isRemote || readData(data, read);
}

// "021   [2]  05 00   'text'", "021   [0]  remote request".
bool readScreen(Cursor *cursor, const QByteArray &identifier, Candump::Line *read)
{
    cursor->skipBlanks();
    const QByteArray size = cursor->word();
    bool ok = false;
    const int count = size.mid(1, size.size() - 2).toInt(&ok);
    if (!takeIdentifier(identifier, &read->identifier) || !size.startsWith('[') || !size.endsWith(']') ||
        !ok || count < 0 || count > LongestData) {
        return false;
    }
    cursor->skipBlanks();
    read->isRemote = cursor->rest().startsWith("remote");
    for (int i = 0; i < count && !read->isRemote; ++i) {
        const int high = LogText::hexDigit(cursor->peek());
        const int low = LogText::hexDigit(cursor->peek(1));
        if (high < 0 || low < 0) {
            return false;
        }
        read->data += char(high << 4 | low);
        cursor->at += 2;
        cursor->skipBlanks();
    }
    return true;
}

} // namespace

bool Candump::read(const QByteArray &line, Line *read)
{
    Cursor cursor(line);
    read->stamp.take(&cursor, false);
    cursor.skipBlanks();
    read->interface = cursor.word();
    cursor.skipBlanks();
    QByteArray frame = cursor.word();
    if (read->interface.isEmpty() || frame.contains('#')) {
        return !read->interface.isEmpty() && readCompact(frame, read);
    }
    // With -x there are the direction and two flags.
    if (frame == "RX" || frame == "TX") {
        for (int i = 0; i < 3; ++i) {
            cursor.skipBlanks();
            frame = cursor.word();
        }
    }
    return readScreen(&cursor, frame, read);
}

TextLogReader::Outcome CandumpReader::take(const QByteArray &line, LineRecord *record)
{
    const QByteArray text = line.trimmed();
    Candump::Line read;
    if (text.isEmpty() || text.startsWith('#') || text.startsWith(';')) {
        return Comment;
    }
    if (!Candump::read(text, &read)) {
        return Unread;
    }
    record->microseconds = m_clock.at(read.stamp);
    m_header.start = m_clock.start();
    m_hasTimes = m_clock.hasTimes();
    if (read.identifier > MostIdentifier) {
        skip("frames with an identifier that is no command of a box");
        return Comment;
    }
    record->kind = read.interface == ToBoxName ? LineRecord::ToBox : LineRecord::ToUnit;
    record->bytes = read.isRemote ? QByteArray(1, char(read.identifier))
                                  : m_format.frame({quint8(read.identifier), read.data});
    return Record;
}

void CandumpWriter::putHeader(const LineLogHeader &header)
{
    m_start = header.start.isValid() ? header.start.toMSecsSinceEpoch() * 1000 : 0;
    for (const QString &value : {header.type, header.port, header.settings}) {
        if (!value.isEmpty()) {
            m_changes.add("lines of the header, for which a CAN log has no place");
        }
    }
}

void CandumpWriter::putRecord(const LineRecord &record)
{
    m_packages.feed(record);
    putPieces();
}

void CandumpWriter::putEnd()
{
    m_packages.finish();
    putPieces();
}

void CandumpWriter::putPieces()
{
    for (LinePackages::Item item; m_packages.next(&item);) {
        putPiece(item);
    }
}

void CandumpWriter::putPiece(const LinePackages::Item &item)
{
    const LineRecord &record = item.record;
    if (record.kind == LineRecord::State) {
        m_losses.add("states of the line");
        return;
    }
    if (item.piece == LinePiece::Skipped) {
        m_losses.add("bytes that are no package", 0, record.bytes.size());
        return;
    }
    QByteArray frame;
    if (item.piece == LinePiece::Answer) {
        frame = QByteArray::number(quint8(record.bytes.at(0)), 16) + "#R";
    } else {
        const BoxPackage package = m_packages.format().package(record.bytes);
        if (package.n() > LongestData) {
            m_losses.add("packages with more than 64 bytes of data");
            return;
        }
        frame = QByteArray::number(package.command, 16) + (package.n() > ClassicSize ? "##0" : "#") +
                package.data.toHex();
    }
    const int digits = int(frame.indexOf('#'));
    put('(' + LogText::seconds(m_start + record.microseconds).rightJustified(17, '0') + ") " +
        (record.isTowardsUnit() ? ToUnitName : ToBoxName) + ' ' + QByteArray(3 - digits, '0') +
        frame.toUpper() + '\n');
}
