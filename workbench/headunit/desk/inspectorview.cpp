#include "inspectorview.h"

#include "bytesdelegate.h"
#include "callsmodel.h"
#include "deskstyle.h"
#include "filterbar.h"
#include "fingerscroll.h"
#include "inspection.h"
#include "inspectionmodel.h"
#include "inspectiontext.h"
#include "lineinspector.h"
#include "panelcard.h"
#include "plaincelldelegate.h"
#include "ratestable.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

namespace {

const int Gap = 8;
const int RowHeight = 22;
const int LeastTableHeight = 220;
const int ChosenHeight = 60;
const int ChosenHeightWithCalls = 92;
const int SideWidth = 410;
const int CallsInSight = 6; // of the chosen package, in a narrow view

bool isFromBox(const InspectionRow &row)
{
    return row.kind == InspectionRow::Package && row.isTowardsUnit;
}

} // namespace

InspectorView::InspectorView(LineInspector *inspector, Width width, QWidget *parent)
    : QWidget(parent)
    , m_model(new InspectionModel(inspector, this))
    , m_filterBar(new FilterBar(width == Wide))
    , m_table(new QTableView)
    , m_chosen(PanelCard::plainLabel("chosenPackage"))
    , m_search(new QLineEdit)
    , m_pause(PanelCard::chip())
    , m_copy(PanelCard::chip())
    , m_bits(PanelCard::chip())
{
    makeTable();
    m_chosen->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_search->setClearButtonEnabled(true);
    DeskStyle::dimHint(m_search);
    m_pause->setCheckable(true);
    layOut(width == Wide);
    for (const int column : {int(InspectionModel::AnswerColumn), int(InspectionModel::CausedColumn)}) {
        m_table->setColumnHidden(column, width == Narrow);
    }
    connect(m_filterBar, &FilterBar::filterChanged, m_model, &InspectionModel::setFilter);
    connect(m_pause, &QPushButton::toggled, m_model, &InspectionModel::setPaused);
    connect(m_copy, &QPushButton::clicked, this, &InspectorView::copyRows);
    connect(m_bits, &QPushButton::clicked, this, &InspectorView::openChosen);
    connect(m_table, &QTableView::doubleClicked, this, &InspectorView::openChosen);
    connect(m_search, &QLineEdit::returnPressed, this,
            [this] { search(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &InspectorView::showChosen);
    setTexts();
}

void InspectorView::makeTable()
{
    DeskStyle::makeDense(m_table, RowHeight);
    m_table->setModel(m_model);
    m_table->setItemDelegate(new PlainCellDelegate(this));
    m_table->setItemDelegateForColumn(InspectionModel::BytesColumn, new BytesDelegate(m_model, this));
    m_table->setMinimumHeight(LeastTableHeight);
    // It shows the newest, unless somebody has scrolled away from there.
    QScrollBar *bar = m_table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar] { m_followsNewest = bar->value() >= bar->maximum() - RowHeight; });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (m_followsNewest) {
            bar->setValue(bar->maximum());
        }
    });
    // Who has put a finger on a row wants to tap it once more.
    connect(m_table, &QTableView::pressed, this, [this] { m_followsNewest = false; });
    QShortcut *copy = new QShortcut(QKeySequence::Copy, m_table);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &InspectorView::copyRows);
}

// Of one height whatever was chosen: a table that moves under the finger would choose another row.
QWidget *InspectorView::makeChosen(bool isWide)
{
    QScrollArea *area = new QScrollArea;
    area->setObjectName(QStringLiteral("chosenArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFixedHeight(isWide ? ChosenHeight : ChosenHeightWithCalls);
    area->setWidget(m_chosen);
    FingerScroll::enable(area);
    return area;
}

void InspectorView::layOut(bool isWide)
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    column->addWidget(m_filterBar);
    if (!isWide) {
        m_window = PanelCard::chip();
        connect(m_window, &QPushButton::clicked, this, &InspectorView::windowWanted);
        QHBoxLayout *buttons = PanelCard::pair(m_pause, m_copy);
        buttons->addWidget(m_window, 1);
        for (QWidget *wide : {static_cast<QWidget *>(m_search), static_cast<QWidget *>(m_bits)}) {
            wide->setParent(this);
            wide->hide();
        }
        column->addWidget(m_table, 1);
        column->addWidget(makeChosen(isWide));
        column->addLayout(buttons);
        m_table->setColumnWidth(InspectionModel::TimeColumn, 70);
        m_table->setColumnWidth(InspectionModel::DirectionColumn, 18);
        m_table->setColumnWidth(InspectionModel::SubjectColumn, 96);
        m_table->horizontalHeader()->setSectionResizeMode(InspectionModel::BytesColumn, QHeaderView::Stretch);
        return;
    }
    QHBoxLayout *row = PanelCard::pair(m_search, m_pause);
    row->addWidget(m_copy, 1);
    row->addWidget(m_bits, 1);
    row->setStretch(0, 4);
    column->addLayout(row);
    QHBoxLayout *halves = new QHBoxLayout;
    halves->setSpacing(Gap);
    QVBoxLayout *left = new QVBoxLayout;
    left->addWidget(m_table, 1);
    left->addWidget(makeChosen(isWide));
    halves->addLayout(left, 1);
    halves->addWidget(makeCalls());
    column->addLayout(halves, 1);
    m_table->setColumnWidth(InspectionModel::TimeColumn, 78);
    m_table->setColumnWidth(InspectionModel::DirectionColumn, 20);
    m_table->setColumnWidth(InspectionModel::SubjectColumn, 136);
    m_table->setColumnWidth(InspectionModel::BytesColumn, 250);
    m_table->setColumnWidth(InspectionModel::AnswerColumn, 76);
    m_table->horizontalHeader()->setStretchLastSection(true);
}

QWidget *InspectorView::makeCalls()
{
    m_callsModel = new CallsModel(m_model, this);
    m_calls = new QListView;
    m_calls->setObjectName(QStringLiteral("callList"));
    m_calls->setUniformItemSizes(true);
    m_calls->setItemDelegate(new PlainCellDelegate(this));
    m_calls->setModel(m_callsModel);
    m_calls->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_calls->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_rates = new RatesTable;
    m_callsTitle = PanelCard::plainLabel("cardTitle");
    m_ratesTitle = PanelCard::plainLabel("cardTitle");
    connect(m_calls, &QListView::clicked, this,
            [this](const QModelIndex &call) { choosePackage(m_callsModel->numberOf(call.row())); });
    connect(m_calls, &QListView::activated, this,
            [this](const QModelIndex &call) { choosePackage(m_callsModel->numberOf(call.row())); });
    connect(m_rates, &RatesTable::filterWanted, m_filterBar, &FilterBar::setWords);
    connect(m_model, &InspectionModel::looked, m_rates,
            [this] { m_rates->showRates(m_model->inspection()); });
    QWidget *side = new QWidget;
    side->setFixedWidth(SideWidth);
    QVBoxLayout *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    column->addWidget(m_callsTitle);
    column->addWidget(m_calls, 3);
    column->addWidget(m_ratesTitle);
    column->addWidget(m_rates, 2);
    return side;
}

// ------------------------------------------------------------------------------------------- the way to and fro

void InspectorView::choosePackage(qint64 number)
{
    const int row = m_model->rowOf(number);
    if (row < m_model->rowCount() && m_model->numberOf(row) == number) {
        m_followsNewest = false;
        m_table->setCurrentIndex(m_model->index(row, 0));
        m_table->scrollTo(m_model->index(row, 0), QAbstractItemView::PositionAtCenter);
    }
}

void InspectorView::showChosen()
{
    const QModelIndex index = m_table->currentIndex();
    if (!index.isValid()) {
        m_chosen->setText(tr("Choose a package to see all of it."));
        m_bits->setEnabled(false);
        return;
    }
    const qint64 number = m_model->numberOf(index.row());
    if (number < m_model->inspection().firstNumber()) {
        return;
    }
    const InspectionRow &row = m_model->inspection().row(number);
    QStringList lines;
    const QString answer = InspectionText::acknowledgement(row);
    lines << InspectionModel::subject(row) +
                 (answer.isEmpty() ? QString() : QStringLiteral(" · ") + tr("answered in %1").arg(answer));
    if (!row.bytes.isEmpty()) {
        lines << QString::fromLatin1(row.bytes.toHex(' '));
    }
    if (!m_calls) {
        lines << row.calls.mid(0, CallsInSight);
        if (row.calls.size() > CallsInSight) {
            lines << tr("Further calls: %1").arg(row.calls.size() - CallsInSight);
        }
    } else if (isFromBox(row)) {
        lines << (row.calls.isEmpty()
                      ? row.isTaken ? tr("The unit made nothing of it") : tr("The unit did not take it")
                      : tr("Calls: %1").arg(row.calls.size()));
    }
    m_chosen->setText(lines.join('\n'));
    showCallsOf(number);
    m_bits->setEnabled(isFromBox(row));
}

void InspectorView::openChosen()
{
    const QModelIndex index = m_table->currentIndex();
    const qint64 number = index.isValid() ? m_model->numberOf(index.row()) : -1;
    if (number < m_model->inspection().firstNumber()) {
        return; // nothing is chosen, or it was forgotten since
    }
    const InspectionRow &row = m_model->inspection().row(number);
    if (isFromBox(row)) {
        Q_EMIT packageChosen(m_model->inspection().type(), row.bytes);
    }
}

void InspectorView::showCallsOf(qint64 number)
{
    if (!m_calls) {
        return;
    }
    m_calls->clearSelection();
    const int first = m_callsModel->rowOf(number);
    for (int i = first; i >= 0 && i < m_callsModel->rowCount() && m_callsModel->numberOf(i) == number; ++i) {
        m_calls->selectionModel()->select(m_callsModel->index(i), QItemSelectionModel::Select);
    }
    if (first >= 0) {
        m_calls->scrollTo(m_callsModel->index(first), QAbstractItemView::PositionAtTop);
    }
}

void InspectorView::search(bool isBackwards)
{
    const int from = m_table->currentIndex().isValid() ? m_table->currentIndex().row() : -1;
    const int count = m_model->rowCount();
    const int row = count == 0
                        ? -1
                        : m_model->find(m_search->text(), isBackwards ? qMax(0, from) + count - 1 : from + 1,
                                        isBackwards);
    if (row >= 0) {
        choosePackage(m_model->numberOf(row));
    }
    m_search->setProperty("found", row >= 0);
    m_search->setToolTip(row >= 0 ? QString() : tr("Nothing found"));
}

// The chosen rows, or all that are in sight of the filter.
void InspectorView::copyRows()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        for (int row = 0; row < m_model->rowCount(); ++row) {
            rows << m_model->index(row, 0);
        }
    }
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex &row : rows) {
        text += InspectionText::plain(m_model->inspection().row(m_model->numberOf(row.row())));
    }
    QGuiApplication::clipboard()->setText(text);
}

// ------------------------------------------------------------------------------------------- texts

void InspectorView::setTexts()
{
    m_search->setPlaceholderText(tr("Search: 2e 21, setTemperature, climate"));
    m_pause->setText(tr("Pause"));
    m_copy->setText(tr("Copy"));
    m_bits->setText(tr("Bits"));
    m_bits->setToolTip(tr("What each bit of the chosen package does"));
    if (m_window) {
        m_window->setText(tr("Window"));
        m_window->setToolTip(tr("Calls and rates as well (F8)"));
    }
    if (m_rates) {
        m_callsTitle->setText(tr("Calls (a click goes to the package)"));
        m_ratesTitle->setText(tr("Commands (a double click filters)"));
        m_rates->setHeadings({tr("Command"), tr("Count"), tr("per s"), tr("Changes"), tr("Bad")});
    }
    showChosen();
}

void InspectorView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}

void InspectorView::showEvent(QShowEvent *event)
{
    m_model->setAwake(true);
    QWidget::showEvent(event);
}

void InspectorView::hideEvent(QHideEvent *event)
{
    m_model->setAwake(false);
    QWidget::hideEvent(event);
}
