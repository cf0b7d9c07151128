#include "junitreport.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace {

// XML has no word for most control characters, and Qt writes them all the same.
QString writable(QString text)
{
    for (QChar &letter : text) {
        if (letter < ' ' && letter != '\t') {
            letter = '?';
        }
    }
    return text;
}

QString seconds(double value)
{
    return QString::number(value, 'f', 3);
}

} // namespace

bool JUnitReport::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    const bool ok = m_file.open(QIODevice::WriteOnly);
    if (!ok) {
        *error = QString("%1: %2").arg(path, m_file.errorString());
    }
    return ok;
}

void JUnitReport::add(int line, const QString &command, double seconds, Outcome outcome,
                      const QString &message)
{
    m_cases << Case{writable(QString("%1: %2").arg(line).arg(command)), seconds, outcome, writable(message)};
}

bool JUnitReport::write(const QString &name)
{
    double whole = 0;
    for (const Case &one : std::as_const(m_cases)) {
        whole += one.seconds;
    }
    QXmlStreamWriter xml(&m_file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement("testsuite");
    xml.writeAttribute("name", writable(name));
    xml.writeAttribute("tests", QString::number(m_cases.size()));
    xml.writeAttribute("failures", QString::number(count(Failed)));
    xml.writeAttribute("errors", QString::number(count(Broken)));
    xml.writeAttribute("time", seconds(whole));
    for (const Case &one : std::as_const(m_cases)) {
        xml.writeStartElement("testcase");
        xml.writeAttribute("classname", writable(name));
        xml.writeAttribute("name", one.name);
        xml.writeAttribute("time", seconds(one.seconds));
        if (one.outcome != Passed) {
            xml.writeEmptyElement(one.outcome == Failed ? "failure" : "error");
            xml.writeAttribute("message", one.message);
        }
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return m_file.commit();
}

int JUnitReport::count(Outcome outcome) const
{
    return int(std::count_if(m_cases.begin(), m_cases.end(),
                             [outcome](const Case &one) { return one.outcome == outcome; }));
}
