#include "packagevalues.h"

#include "boxcatalog.h"

#include <algorithm>

namespace {

const int MostKnown = 4096;
const int MostClicks = 255;
const int ProbeSize = 32; // data bytes that every command finds enough

// "sound" of "sound 0x01 0x02": words up to the first that has a digit or a sign in it.
QString withoutValues(const QString &text)
{
    QStringList words;
    for (const QString &word : text.split(' ')) {
        const bool isName =
            std::all_of(word.begin(), word.end(), [](QChar c) { return c.isLetter() || c == '-'; });
        if (!isName) {
            break;
        }
        words << word;
    }
    return words.isEmpty() ? text : words.join(' ');
}

// The words that both begin with, or both.
QString common(const QString &one, const QString &other)
{
    const QStringList words = one.split(' ');
    const QStringList others = other.split(' ');
    int count = 0;
    while (count < words.size() && count < others.size() && words.at(count) == others.at(count)) {
        ++count;
    }
    return count > 0 ? QStringList(words.mid(0, count)).join(' ') : one + ", " + other;
}

} // namespace

std::unique_ptr<PackageValues> PackageValues::create(int type, QString *error)
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.type == type && row.makeSpeaker) {
            return std::unique_ptr<PackageValues>(new PackageValues(row.makeSpeaker));
        }
    }
    *error = QString("nobody knows what the packages of CAN-bus type %1 mean").arg(type);
    return nullptr;
}

PackageValues::PackageValues(BoxSpeaker *(*makeSpeaker)(SimulatedCar *))
    : m_speaker(makeSpeaker(&m_car)), m_known(MostKnown)
{
    for (const BoxReport &report : m_speaker->reports()) {
        m_fits << ReportFit(report);
    }
    QObject::connect(m_speaker.get(), &BoxSpeaker::observed, &m_car,
                     [this](const QString &topic, const QString &value) {
                         m_told.append({topic, value});
                     });
    QObject::connect(&m_car, &SimulatedCar::changed, m_speaker.get(), [this](const QString &name) {
        if (m_isListening) {
            m_told.append({name, m_car.text(name)});
        }
    });
}

LineValueSource::Meaning PackageValues::meaning(const BoxPackage &package, bool isTowardsUnit)
{
    return isTowardsUnit ? fromBox(package) : fromUnit(package);
}

LineValueSource::Meaning PackageValues::fromBox(const BoxPackage &package)
{
    const QByteArray key = char(package.command) + package.data;
    if (const Meaning *known = m_known.object(key)) {
        return *known;
    }
    Meaning meaning;
    if (!readKey(package, &meaning)) {
        readReport(package, &meaning);
    }
    if (meaning.name.isEmpty()) {
        meaning.name = commandName(package.command, true);
    }
    m_known.insert(key, new Meaning(meaning));
    return meaning;
}

LineValueSource::Meaning PackageValues::fromUnit(const BoxPackage &package)
{
    Meaning meaning;
    m_told.clear();
    m_isListening = true;
    const BoxSpeaker::Understanding understanding = m_speaker->receive(package, &meaning.name);
    m_isListening = false;
    meaning.name = understanding == BoxSpeaker::UnknownCommand ? QString() : withoutValues(meaning.name);
    meaning.values = m_told;
    return meaning;
}

bool PackageValues::readKey(const BoxPackage &package, Meaning *meaning) const
{
    const QPair<BoxSpeaker::KeyState, const char *> states[] = {
        {BoxSpeaker::Pressed, "pressed"}, {BoxSpeaker::Held, "held"}, {BoxSpeaker::Released, "released"}};
    const auto isIt = [&package](const BoxPackage &other) {
        return other.command == package.command && other.data == package.data;
    };
    for (const BoxKey &key : m_speaker->keys()) {
        if (key.command != package.command) {
            continue;
        }
        for (int count = 0; key.source == BoxKey::Knob && count <= MostClicks; ++count) {
            if (isIt(m_speaker->knobPackage(key, count))) {
                *meaning = {"knob", {{key.name, QString::number(count)}}};
                return true;
            }
        }
        for (const auto &state : states) {
            const QVector<BoxPackage> packages = m_speaker->keyPackages(key, state.first);
            if (key.source != BoxKey::Knob && std::any_of(packages.begin(), packages.end(), isIt)) {
                *meaning = {"key", {{key.name, state.second}}};
                return true;
            }
        }
    }
    return false;
}

// Several reports may go by one command; the one that fits best is meant.
bool PackageValues::readReport(const BoxPackage &package, Meaning *meaning) const
{
    const ReportFit *best = nullptr;
    int least = 0;
    for (const ReportFit &fit : m_fits) {
        if (fit.report().command != package.command) {
            continue;
        }
        SimulatedCar car;
        const int distance = fit.fit(package.data, &car);
        if (best && distance >= least) {
            continue;
        }
        best = &fit;
        least = distance;
        *meaning = {fit.report().meaning, {}};
        for (const CarProperty *property : fit.told(package.data, &car)) {
            meaning->values.append({property->name, car.text(property->name)});
        }
    }
    return best;
}

QString PackageValues::commandName(quint8 command, bool isTowardsUnit)
{
    if (!isTowardsUnit) {
        QStringList names;
        for (const char first : {'\1', '\0'}) {
            QString name;
            const QByteArray data = first + QByteArray(ProbeSize, '\0');
            if (m_speaker->receive({command, data}, &name) != BoxSpeaker::UnknownCommand) {
                names << withoutValues(name);
            }
        }
        return names.isEmpty() ? QString() : common(names.first(), names.last());
    }
    QStringList names;
    for (const BoxReport &report : m_speaker->reports()) {
        if (report.command == command && !names.contains(withoutValues(report.meaning))) {
            names << withoutValues(report.meaning);
        }
    }
    for (const BoxKey &key : m_speaker->keys()) {
        const QString name = key.source == BoxKey::Knob ? "knob" : "key";
        if (key.command == command && !names.contains(name)) {
            names << name;
        }
    }
    return names.join(", ");
}

QByteArray PackageValues::toldBits(const BoxPackage &package)
{
    const auto isOfCommand = [&package](const BoxKey &key) { return key.command == package.command; };
    const auto &keys = m_speaker->keys();
    if (std::any_of(keys.begin(), keys.end(), isOfCommand)) {
        Meaning meaning;
        return QByteArray(package.n(), readKey(package, &meaning) ? '\xFF' : '\0');
    }
    if (!m_bits.contains(package.command)) {
        QByteArray bits;
        for (const ReportFit &fit : m_fits) {
            const QByteArray more = fit.report().command == package.command ? fit.bits() : QByteArray();
            bits += QByteArray(qMax(0, int(more.size() - bits.size())), '\0');
            for (int i = 0; i < more.size(); ++i) {
                bits[i] = char(bits.at(i) | more.at(i));
            }
        }
        m_bits.insert(package.command, bits);
    }
    return m_bits.value(package.command);
}

QVector<quint8> PackageValues::commands(bool isTowardsUnit) const
{
    QVector<quint8> commands = isTowardsUnit ? QVector<quint8>() : m_speaker->commands().toVector();
    for (int command = 0; isTowardsUnit && command <= 0xFF; ++command) {
        const auto isIt = [command](const auto &row) { return row.command == command; };
        const auto &reports = m_speaker->reports();
        const auto &keys = m_speaker->keys();
        if (std::any_of(reports.begin(), reports.end(), isIt) ||
            std::any_of(keys.begin(), keys.end(), isIt)) {
            commands << quint8(command);
        }
    }
    std::sort(commands.begin(), commands.end());
    return commands;
}
