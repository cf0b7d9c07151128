#include "keytestercard.h"

#include "carwords.h"
#include "deskcolours.h"
#include "deskstyle.h"
#include "keytext.h"
#include "keywatch.h"
#include "unitkey.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum Column { KeyColumn, PressedColumn, DownColumn, BecomesColumn, ColumnCount };

const int RowHeight = 24;
const int RowsInSight = 6;
const int MostRows = 100;

QString seconds(qint64 microseconds)
{
    return QString::number(double(microseconds) / 1e6, 'f', 2);
}

QString code(const KeyStroke &stroke)
{
    return QStringLiteral("0x%1").arg(stroke.code, stroke.group == KeyStroke::Unit ? 0 : 2, 16,
                                      QLatin1Char('0'));
}

QString names(const QVector<quint32> &keys)
{
    QStringList names;
    for (const quint32 key : keys) {
        names << UnitKey::of(int(key)).text();
    }
    return names.isEmpty() ? KeyTesterCard::tr("nothing") : names.join(QStringLiteral(", "));
}

} // namespace

KeyTesterCard::KeyTesterCard(KeyWatch *watch, QWidget *parent)
    : PanelCard(QString(), parent)
    , m_watch(watch)
    , m_alarm(plainLabel("alarm"))
    , m_hint(plainLabel("controlName"))
    , m_table(new QTableWidget(0, ColumnCount))
    , m_chosen(plainLabel("chosenPackage"))
    , m_copy(chip())
{
    DeskStyle::makeDense(m_table, RowHeight);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionResizeMode(KeyColumn, QHeaderView::Stretch);
    for (const int column : {int(PressedColumn), int(DownColumn)}) {
        m_table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    m_table->setColumnWidth(BecomesColumn, 80);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_alarm), static_cast<QWidget *>(m_hint), static_cast<QWidget *>(m_table),
          static_cast<QWidget *>(m_chosen), static_cast<QWidget *>(m_copy)}) {
        rows()->addWidget(widget);
    }
    connect(watch, &KeyWatch::looked, this, &KeyTesterCard::look);
    connect(m_table, &QTableWidget::currentCellChanged, this, &KeyTesterCard::showChosen);
    connect(m_copy, &QPushButton::clicked, this, &KeyTesterCard::copyTables);
    setTexts();
}

// The newest on top.
void KeyTesterCard::look()
{
    if (!isVisible()) {
        return;
    }
    const std::deque<KeyStroke> &strokes = m_watch->tester()->strokes();
    const int count = qMin(int(strokes.size()), MostRows);
    m_table->setRowCount(count);
    for (int row = 0; row < count; ++row) {
        showStroke(row, strokes[strokes.size() - 1 - size_t(row)]);
    }
    const auto stuck = std::find_if(strokes.rbegin(), strokes.rend(), [](const KeyStroke &stroke) {
        return stroke.isStuck && stroke.isDown();
    });
    m_alarm->setVisible(stuck != strokes.rend());
    if (stuck != strokes.rend()) {
        m_alarm->setText(tr("%1 %2 has been down for %3 s and does not come up")
                             .arg(code(*stuck), CarWords::text(stuck->name))
                             .arg(stuck->downFor(m_watch->now()) / 1000));
    }
    m_table->setFixedHeight(RowHeight * (2 + qMin(count, RowsInSight)));
    m_hint->setVisible(strokes.empty());
    m_table->setVisible(!strokes.empty());
    m_copy->setVisible(!strokes.empty());
    showChosen();
}

void KeyTesterCard::showStroke(int row, const KeyStroke &stroke)
{
    QString down;
    if (stroke.group == KeyStroke::Knob) {
        down = QStringLiteral("%1×").arg(stroke.clicks);
    } else if (stroke.pressed < 0) {
        down = tr("no press");
    } else {
        down = tr("%1 ms").arg(stroke.downFor(m_watch->now()));
    }
    const QVector<quint32> keys =
        stroke.group == KeyStroke::Unit && !stroke.redefined.isEmpty() ? stroke.redefined : stroke.becomes;
    const QString texts[ColumnCount] = {
        code(stroke) + ' ' + (stroke.name.isEmpty() ? QString() : CarWords::text(stroke.name)),
        seconds(stroke.pressed < 0 ? stroke.released : stroke.pressed), down, names(keys)};
    const QColor colour = stroke.isStuck && stroke.isDown()      ? DeskColours::Error
                          : keys.isEmpty() || stroke.pressed < 0 ? DeskColours::Warning
                          : stroke.isDown()                      ? DeskColours::Accent
                                                                 : DeskColours::Text;
    for (int column = 0; column < ColumnCount; ++column) {
        if (!m_table->item(row, column)) {
            m_table->setItem(row, column, new QTableWidgetItem);
        }
        m_table->item(row, column)->setText(texts[column]);
        m_table->item(row, column)->setForeground(colour);
    }
}

void KeyTesterCard::showChosen()
{
    const std::deque<KeyStroke> &strokes = m_watch->tester()->strokes();
    const int row = m_table->currentRow();
    const bool isThere = row >= 0 && row < int(strokes.size());
    m_chosen->setVisible(isThere);
    if (!isThere) {
        return;
    }
    const KeyStroke &stroke = strokes[strokes.size() - 1 - size_t(row)];
    const QString groups[] = {tr("Steering wheel"), tr("Car's panel"), tr("Knob"), tr("Unit")};
    QStringList lines{groups[stroke.group] + QStringLiteral(" · ") + KeyText::raw(stroke)};
    if (stroke.pressed >= 0) {
        lines << tr("Pressed at %1 s, held %2 times").arg(seconds(stroke.pressed)).arg(stroke.holds);
    }
    lines << (stroke.isDown() ? tr("Still down") : tr("Came up at %1 s").arg(seconds(stroke.released)));
    lines << tr("Becomes: %1").arg(names(stroke.becomes));
    if (stroke.group == KeyStroke::Unit) {
        lines << tr("After redefinition: %1")
                     .arg(stroke.redefined.isEmpty() ? tr("the same") : names(stroke.redefined));
    }
    m_chosen->setText(lines.join('\n'));
}

void KeyTesterCard::copyTables()
{
    QString text;
    for (const KeyStroke &stroke : m_watch->tester()->strokes()) {
        text += KeyText::plain(stroke, m_watch->now()) + '\n';
    }
    QGuiApplication::clipboard()->setText(text + '\n' + KeyText::tables(m_watch->tester()->strokes()));
}

void KeyTesterCard::setTexts()
{
    setTitle(tr("Key tester"));
    m_hint->setText(tr("Press each key of the car, or of the unit, once: here stands what becomes of it."));
    m_copy->setText(tr("Copy as a key table"));
    m_table->setHorizontalHeaderLabels({tr("Key"), tr("Pressed, s"), tr("Down"), tr("Becomes")});
    look();
}

void KeyTesterCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    PanelCard::changeEvent(event);
}

void KeyTesterCard::showEvent(QShowEvent *event)
{
    PanelCard::showEvent(event);
    look();
}
