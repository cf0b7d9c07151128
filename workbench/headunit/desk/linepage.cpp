#include "linepage.h"

#include "fingerscroll.h"
#include "linelogmodel.h"
#include "linewords.h"
#include "panelcard.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <algorithm>

namespace {

const int Gap = 8;
const int RowHeight = 22;
const int LeastTableHeight = 220;

QPushButton *chip()
{
    QPushButton *button = new QPushButton;
    button->setObjectName(QStringLiteral("chip"));
    return button;
}

} // namespace

LinePage::LinePage(LineRecorder *recorder, QWidget *parent)
    : QWidget(parent)
    , m_model(new LineLogModel(recorder, this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_stateCard(new PanelCard(QString()))
    , m_state(PanelCard::plainLabel("controlValue"))
    , m_counts(PanelCard::plainLabel("controlName"))
    , m_answer(PanelCard::plainLabel("controlName"))
    , m_hello(chip())
    , m_save(chip())
    , m_logCard(new PanelCard(QString()))
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
    addLogCard();
    connect(m_hello, &QPushButton::clicked, this, &LinePage::helloWanted);
    connect(m_save, &QPushButton::clicked, this, &LinePage::saveWanted);
    setTexts();
}

void LinePage::addLogCard()
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(LineLogModel::BytesColumn);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter = new QLineEdit;
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_filtered, &QSortFilterProxyModel::setFilterFixedString);

    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("lineTable"));
    m_table->setModel(m_filtered);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setMinimumSectionSize(RowHeight);
    m_table->verticalHeader()->setDefaultSectionSize(RowHeight);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setColumnWidth(LineLogModel::TimeColumn, 78);
    m_table->setColumnWidth(LineLogModel::DirectionColumn, 24);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setMinimumHeight(LeastTableHeight);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // It shows the newest, unless somebody has scrolled away from there.
    QScrollBar *bar = m_table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar] { m_followsNewest = bar->value() >= bar->maximum() - RowHeight; });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (m_followsNewest) {
            bar->setValue(bar->maximum());
        }
    });

    m_pause = chip();
    m_pause->setCheckable(true);
    m_copy = chip();
    connect(m_pause, &QPushButton::toggled, m_model, &LineLogModel::setPaused);
    connect(m_copy, &QPushButton::clicked, this, &LinePage::copyRows);
    QShortcut *copy = new QShortcut(QKeySequence::Copy, m_table);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &LinePage::copyRows);
    m_logCard->rows()->addWidget(m_filter);
    m_logCard->rows()->addLayout(PanelCard::pair(m_pause, m_copy));
    m_logCard->rows()->addWidget(m_table, 1);
}

// The chosen rows, or all that are in sight of the filter.
void LinePage::copyRows()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        for (int row = 0; row < m_filtered->rowCount(); ++row) {
            rows << m_filtered->index(row, 0);
        }
    }
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex &row : rows) {
        text += m_model->line(m_filtered->mapToSource(row).row()) + QLatin1Char('\n');
    }
    QGuiApplication::clipboard()->setText(text);
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
    m_state->setText(m_status.text());
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
    m_filter->setPlaceholderText(tr("Bytes to look for: 2e 21"));
    m_pause->setText(tr("Pause"));
    m_copy->setText(tr("Copy"));
    showStatus();
}

void LinePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
