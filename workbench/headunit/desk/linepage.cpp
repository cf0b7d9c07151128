#include "linepage.h"

#include "inspectorview.h"
#include "linewords.h"
#include "panelcard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const int Gap = 8;
const int Margin = 12;
const QSize WindowSize(1250, 600);

} // namespace

LinePage::LinePage(LineInspector *inspector, QWidget *parent)
    : QWidget(parent)
    , m_inspector(inspector)
    , m_stateCard(new PanelCard(QString()))
    , m_state(PanelCard::plainLabel("controlValue"))
    , m_counts(PanelCard::plainLabel("controlName"))
    , m_answer(PanelCard::plainLabel("controlName"))
    , m_hello(PanelCard::chip())
    , m_save(PanelCard::chip())
    , m_logCard(new PanelCard(QString()))
    , m_view(new InspectorView(inspector, InspectorView::Narrow))
{
    setObjectName(QStringLiteral("sidePage"));
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Gap);
    page->addWidget(m_stateCard);
    page->addWidget(m_logCard, 1);
    m_stateCard->rows()->addWidget(m_state);
    m_stateCard->rows()->addWidget(m_counts);
    m_stateCard->rows()->addLayout(PanelCard::pair(m_hello, m_save));
    m_stateCard->rows()->addWidget(m_answer);
    m_answer->hide();
    m_logCard->rows()->addWidget(m_view, 1);
    connect(m_view, &InspectorView::windowWanted, this, &LinePage::openInspector);
    connect(m_view, &InspectorView::packageChosen, this, &LinePage::packageChosen);
    connect(m_hello, &QPushButton::clicked, this, &LinePage::helloWanted);
    connect(m_save, &QPushButton::clicked, this, &LinePage::saveWanted);
    setTexts();
}

void LinePage::openInspector()
{
    if (!m_window) {
        m_window = new InspectorView(m_inspector, InspectorView::Wide, this);
        m_window->setWindowFlag(Qt::Window);
        m_window->setObjectName(QStringLiteral("inspectorWindow"));
        m_window->setAttribute(Qt::WA_StyledBackground);
        m_window->setContentsMargins(Margin, Margin, Margin, Margin);
        m_window->resize(WindowSize);
        connect(m_window, &InspectorView::packageChosen, this, &LinePage::packageChosen);
        setTexts();
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void LinePage::setStatus(const LineStatus &status)
{
    m_status = status;
    showStatus();
}

void LinePage::addCard(QWidget *card)
{
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, card);
}

void LinePage::setAnswer(const QString &sentence)
{
    m_answer->setText(sentence);
    m_answer->setVisible(!sentence.isEmpty());
}

void LinePage::showStatus()
{
    m_stateCard->setTitle(m_status.port.isEmpty() ? tr("Line") : tr("Line %1").arg(m_status.port));
    const QString state = m_status.text();
    m_state->setText(state.left(1).toUpper() + state.mid(1)); // the strip has it in the middle of a line
    m_counts->setText(QStringList{
        tr("Packages: %1, %2 a second").arg(m_status.packages).arg(m_status.packagesPerSecond),
        tr("Last package: %1").arg(LineWords::age(m_status)),
        tr("Acknowledged in: %1").arg(LineWords::acknowledgement(m_status)),
        tr("Bad checksums: %1").arg(m_status.badChecksums),
        tr("Skipped bytes: %1").arg(m_status.skippedBytes), tr("Repetitions: %1").arg(m_status.repetitions)}
                          .join(QLatin1Char('\n')));
}

void LinePage::setTexts()
{
    m_hello->setText(tr("Say hello"));
    m_hello->setToolTip(tr("Sends the box the ready command again"));
    m_save->setText(tr("Save 60 s"));
    m_logCard->setTitle(tr("Line log"));
    if (m_window) {
        m_window->setWindowTitle(tr("Inspector"));
    }
    showStatus();
}

void LinePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
