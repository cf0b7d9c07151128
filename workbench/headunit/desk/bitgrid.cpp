#include "bitgrid.h"

#include "bitgridpicture.h"
#include "boxcatalog.h"
#include "frameformat.h"

#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

const QSize FirstSize(980, 620);

QVector<BitGrid::Run> runsOf(const QByteArray &json)
{
    QVector<BitGrid::Run> runs;
    for (const auto &value : QJsonDocument::fromJson(json).array()) {
        const QJsonObject row = value.toObject();
        const int high = row.value(QStringLiteral("high")).toInt();
        const int low = row.value(QStringLiteral("low")).toInt();
        BitGrid::Run run = {row.value(QStringLiteral("byte")).toInt(),
                            high,
                            low,
                            {},
                            row.value(QStringLiteral("partner")).toString(),
                            row.value(QStringLiteral("dependsOnState")).toBool()};
        for (const auto &effect : row.value(QStringLiteral("effects")).toArray()) {
            run.effects << effect.toObject().value(QStringLiteral("call")).toString() +
                               (high > low ? QStringLiteral(": ") : QStringLiteral(" ")) +
                               effect.toObject().value(QStringLiteral("text")).toString();
        }
        runs << run;
    }
    return runs;
}

} // namespace

BitGrid::BitGrid(const QString &program, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_program(program)
    , m_title(new QLabel)
    , m_note(new QLabel)
    , m_picture(new BitGridPicture)
{
    setObjectName(QStringLiteral("bitGrid"));
    m_title->setObjectName(QStringLiteral("bitGridTitle"));
    m_title->setWordWrap(true);
    m_note->setObjectName(QStringLiteral("bitGridNote"));
    m_note->setWordWrap(true);
    QScrollArea *area = new QScrollArea;
    area->setObjectName(QStringLiteral("bitGridArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(m_picture);
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);
    page->addWidget(m_title);
    page->addWidget(m_note);
    page->addWidget(area, 1);
    resize(FirstSize);
}

BitGrid::~BitGrid()
{
    if (m_probe) {
        m_probe->disconnect(this);
        m_probe->kill();
        m_probe->waitForFinished();
    }
}

void BitGrid::showPackage(int type, const QByteArray &frame)
{
    if (m_probe) {
        m_probe->disconnect(this);
        connect(m_probe, SIGNAL(finished(int, QProcess::ExitStatus)), m_probe, SLOT(deleteLater()));
        m_probe->kill();
    }
    m_type = type;
    m_frame = frame;
    m_picture->setRuns(QByteArray(), {});
    setTexts();
    say(tr("The bits are being tried out ..."));
    m_probe = new QProcess(this);
    connect(m_probe, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &BitGrid::onFinished);
    connect(m_probe, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            onFinished(1, QProcess::CrashExit);
        }
    });
    m_probe->start(m_program,
                   {QStringLiteral("probe"), QStringLiteral("--can-bus-type"), QString::number(type),
                    QStringLiteral("--frame"), QString::fromLatin1(frame.toHex()), QStringLiteral("--json")});
    show();
    raise();
}

void BitGrid::onFinished(int exitCode, QProcess::ExitStatus status)
{
    const QByteArray answer = m_probe->readAllStandardOutput();
    const QString complaint = QString::fromLocal8Bit(m_probe->readAllStandardError());
    m_probe->deleteLater();
    m_probe = nullptr;
    const FrameFormat *format = BoxCatalog::frameOf(m_type);
    if (exitCode == 0 && status == QProcess::NormalExit && format) {
        m_picture->setRuns(format->package(m_frame).data, runsOf(answer));
        say(QString());
    } else {
        const QString sentence = complaint.section(QLatin1Char('\n'), 0, 0).section(QStringLiteral(": "), 1);
        say(sentence.isEmpty() ? tr("The bits could not be tried out.") : sentence);
    }
    Q_EMIT shown();
}

void BitGrid::say(const QString &sentence)
{
    m_note->setText(sentence);
    m_note->setVisible(!sentence.isEmpty());
}

void BitGrid::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        m_picture->update();
    }
    QWidget::changeEvent(event);
}

void BitGrid::setTexts()
{
    const FrameFormat *format = BoxCatalog::frameOf(m_type);
    const int command = format && format->isFrame(m_frame) ? format->package(m_frame).command : 0;
    setWindowTitle(tr("Bits of a package"));
    m_title->setText(
        tr("Package 0x%1 of %2").arg(command, 2, 16, QLatin1Char('0')).arg(BoxCatalog::className(m_type)));
}
