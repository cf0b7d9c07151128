#include "filterbar.h"

#include "deskstyle.h"
#include "keptfilters.h"
#include "panelcard.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const int Gap = 8;
const int LeastWidth = 156; // of a button beside the words

} // namespace

FilterBar::FilterBar(bool isWide, QWidget *parent)
    : QWidget(parent)
    , m_words(new QComboBox)
    , m_keep(PanelCard::chip())
    , m_forget(PanelCard::chip())
    , m_unexplained(PanelCard::chip())
    , m_changing(PanelCard::chip())
    , m_problem(PanelCard::plainLabel("problem"))
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    QBoxLayout *row = new QBoxLayout(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    row->setSpacing(Gap);
    column->addLayout(row);
    column->addWidget(m_problem);
    m_words->setEditable(true);
    m_words->setInsertPolicy(QComboBox::NoInsert);
    m_words->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_words->lineEdit()->setClearButtonEnabled(true);
    DeskStyle::dimHint(m_words->lineEdit());
    row->addWidget(m_words, 1);
    row->addLayout(PanelCard::pair(m_keep, m_forget));
    m_keep->setVisible(isWide);
    m_forget->setVisible(isWide);
    row->addLayout(PanelCard::pair(m_unexplained, m_changing));
    for (QPushButton *button : {m_keep, m_forget, m_unexplained, m_changing}) {
        button->setMinimumWidth(isWide ? LeastWidth : 0);
    }
    m_unexplained->setCheckable(true);
    m_changing->setCheckable(true);
    m_problem->hide();
    connect(m_words->lineEdit(), &QLineEdit::textChanged, this, &FilterBar::apply);
    connect(m_words, QOverload<int>::of(&QComboBox::activated), this, &FilterBar::choose);
    connect(m_unexplained, &QPushButton::toggled, this, &FilterBar::apply);
    connect(m_changing, &QPushButton::toggled, this, &FilterBar::apply);
    connect(m_keep, &QPushButton::clicked, this, &FilterBar::keep);
    connect(m_forget, &QPushButton::clicked, this, &FilterBar::forget);
    setTexts();
}

void FilterBar::setWords(const QString &words)
{
    m_words->setEditText(words);
}

void FilterBar::apply()
{
    const QString words = m_words->currentText().trimmed();
    InspectionFilter filter;
    QString problem;
    const bool isRead = filter.parse(words, &problem);
    m_problem->setText(problem);
    m_problem->setVisible(!isRead);
    m_keep->setEnabled(isRead && !words.isEmpty());
    m_forget->setEnabled(m_words->findData(words) >= 0);
    if (isRead) {
        filter.parse(words + (m_unexplained->isChecked() ? QStringLiteral(" !explained") : QString()) +
                         (m_changing->isChecked() ? QStringLiteral(" changed") : QString()),
                     &problem);
        Q_EMIT filterChanged(filter);
    }
}

void FilterBar::choose(int index)
{
    setWords(m_words->itemData(index).toString());
}

void FilterBar::keep()
{
    const QString words = m_words->currentText().trimmed();
    QInputDialog question(this);
    question.setWindowTitle(tr("Keep the filter"));
    question.setLabelText(tr("Name:"));
    question.setTextValue(words);
    question.setOkButtonText(tr("Keep"));
    question.setCancelButtonText(tr("Cancel"));
    const bool isMeant = question.exec() == QDialog::Accepted;
    const QString name = question.textValue().trimmed();
    if (isMeant && !name.isEmpty()) {
        KeptFilters::keep(name, words);
        listKept();
    }
}

void FilterBar::forget()
{
    KeptFilters::forget(m_words->currentText().trimmed());
    listKept();
}

void FilterBar::listKept()
{
    const QString words = m_words->currentText();
    const QVariantMap filters = KeptFilters::all();
    m_words->clear();
    for (auto filter = filters.cbegin(); filter != filters.cend(); ++filter) {
        m_words->addItem(filter.key(), filter.value());
    }
    m_words->setCurrentIndex(-1);
    setWords(words);
    apply();
}

void FilterBar::setTexts()
{
    m_words->lineEdit()->setPlaceholderText(tr("Filter: %1")
                                                .arg(m_keep->isHidden()
                                                         ? QStringLiteral("cmd=0x28 changed")
                                                         : QStringLiteral("cmd=0x28 changed call=setTemp*")));
    m_words->setToolTip(
        tr("All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, "
           "screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack>20, ack=none, t<9.5; ! turns a word round"));
    m_keep->setText(tr("Keep"));
    m_keep->setToolTip(tr("Keeps this filter under a name"));
    m_forget->setText(tr("Forget"));
    m_forget->setToolTip(tr("Forgets the kept filter"));
    m_unexplained->setText(tr("Unexplained"));
    m_unexplained->setToolTip(tr("Hides what is explained"));
    m_changing->setText(tr("Changes"));
    m_changing->setToolTip(tr("Hides packages that are as the one of their command before"));
}

void FilterBar::showEvent(QShowEvent *event)
{
    listKept(); // another bar may have kept one
    QWidget::showEvent(event);
}

void FilterBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
