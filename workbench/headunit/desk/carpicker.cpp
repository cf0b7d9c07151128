#include "carpicker.h"

#include "boxcatalog.h"
#include "deskstyle.h"
#include "fingerscroll.h"
#include "panelcard.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QSize StandardSize(560, 640);
const int Margin = 16;
const int RowHeight = 44;
const int TypeRole = Qt::UserRole;
const int HasBoxRole = Qt::UserRole + 1;

QLabel *label(const QString &text, const char *name)
{
    QLabel *result = new QLabel(text);
    result->setObjectName(QLatin1String(name));
    return result;
}

} // namespace

CarPicker::CarPicker(int type, const QStringList &ports, QWidget *parent)
    : QDialog(parent), m_search(new QLineEdit), m_cars(new QListWidget), m_line(new QComboBox)
{
    DeskStyle::load();
    setObjectName(QStringLiteral("carPicker"));
    setStyleSheet(DeskStyle::sheet());
    setWindowTitle(tr("Which car?"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_cars->setObjectName(QStringLiteral("carList"));
    m_cars->setUniformItemSizes(true);
    m_line->setEditable(true);
    m_line->addItem(tr("Virtual box"));
    m_line->addItems(ports);
    m_start = PanelCard::chip(tr("Start"));
    m_start->setDefault(true);
    QPushButton *cancel = PanelCard::chip(tr("Cancel"));
    cancel->setAutoDefault(false);

    QVBoxLayout *rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->addWidget(label(tr("The decoder that is fitted"), "cardTitle"));
    rows->addWidget(m_search);
    rows->addWidget(m_cars, 1);
    rows->addWidget(label(tr("Its line: a virtual box, or a serial device of this computer"), "cardTitle"));
    rows->addWidget(m_line);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addWidget(cancel, 1);
    buttons->addWidget(m_start, 1);
    rows->addLayout(buttons);
    resize(StandardSize);

    DeskStyle::dimHint(m_search);
    connect(m_search, &QLineEdit::textChanged, this, &CarPicker::showMatching);
    connect(m_cars, &QListWidget::currentRowChanged, this, &CarPicker::showChoice);
    connect(m_cars, &QListWidget::itemActivated, m_start, &QPushButton::click);
    connect(m_line, &QComboBox::editTextChanged, this, &CarPicker::showChoice);
    connect(m_start, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    addCars(type);
    FingerScroll::enable(m_cars);
    m_cars->setFocus();
}

void CarPicker::addCars(int type)
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        const QString name = QString(row.className).section(QLatin1Char('_'), 1).replace('_', ' ');
        QListWidgetItem *item =
            new QListWidgetItem(row.makeSpeaker ? name : tr("%1 (no virtual box)").arg(name), m_cars);
        item->setData(TypeRole, row.type);
        item->setData(HasBoxRole, row.makeSpeaker != nullptr);
        item->setSizeHint(QSize(0, RowHeight));
        const bool isFirstWithBox = row.makeSpeaker && m_cars->currentRow() < 0;
        if (row.type == type || isFirstWithBox) {
            m_cars->setCurrentItem(item);
        }
    }
    showChoice();
}

void CarPicker::showMatching(const QString &words)
{
    QListWidgetItem *first = nullptr;
    for (int i = 0; i < m_cars->count(); ++i) {
        QListWidgetItem *item = m_cars->item(i);
        item->setHidden(!item->text().contains(words.trimmed(), Qt::CaseInsensitive));
        first = first || item->isHidden() ? first : item;
    }
    if (!m_cars->currentItem() || m_cars->currentItem()->isHidden()) {
        m_cars->setCurrentItem(first);
    }
}

void CarPicker::showChoice()
{
    const QListWidgetItem *item = m_cars->currentItem();
    m_start->setEnabled(item && (!port().isEmpty() || item->data(HasBoxRole).toBool()));
}

int CarPicker::canBusType() const
{
    const QListWidgetItem *item = m_cars->currentItem();
    return item ? item->data(TypeRole).toInt() : 0;
}

QString CarPicker::port() const
{
    const QString text = m_line->currentText().trimmed();
    return text == m_line->itemText(0) ? QString() : text;
}
