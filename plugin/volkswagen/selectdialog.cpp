#include "selectdialog.h"

#include "flowlayout.h"
#include "ui_selectdialog.h"

#include "orbqtcompat.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const int Spacing = 20;
const int ButtonHeight = 60;
const int StepButtonWidth = 100;
const int ValueButtonWidth = 300;
const int RepeatDelay = 500; // ms
const int RepeatInterval = 200;
const int DialogWidth = 720;

} // namespace

SelectDialog::SelectDialog(QWidget *parent)
    : OrbDialog(parent)
    , m_ui(new Ui_SelectDialog)
    , m_contentLayout(nullptr)
    , m_checkBoxGroup(nullptr)
    , m_contentLabel(nullptr)
    , m_valueButton(nullptr)
    , m_value(-1)
    , m_minimum(0)
    , m_maximum(0)
    , m_step(0)
{
    m_ui->setupUi(this);
    setModal(true);
}

SelectDialog::~SelectDialog() {}

void SelectDialog::setWindowTitle(const QString &title)
{
    m_ui->txtTitle->setText(title);
}

void SelectDialog::setContentLayout(QLayout *layout)
{
    if (m_contentLayout) {
        delete layout;
        return;
    }
    m_contentLayout = layout;
    m_ui->widgetContent->setLayout(layout);
}

// ---------------------------------------------------------------------------------------------- text

void SelectDialog::setContentText(const QString &text)
{
    if (m_contentLayout) {
        return;
    }
    m_contentLabel = new QLabel(text, m_ui->widgetContent);
    m_contentLabel->setObjectName(QLatin1String("labelContent"));
    m_contentLabel->setAlignment(Qt::AlignCenter);
    m_contentLabel->setWordWrap(true);
    QHBoxLayout *const layout = new QHBoxLayout;
    layout->setContentsMargins(Spacing, Spacing, Spacing, Spacing);
    layout->addWidget(m_contentLabel);
    setContentLayout(layout);
}

// ---------------------------------------------------------------------------------------------- check boxes

void SelectDialog::setCheckBoxListMode(const QStringList &items, const QString &checkedText, bool exclusive)
{
    if (m_contentLayout) {
        return;
    }
    m_checkBoxGroup = new QButtonGroup(this);
    FlowLayout *const layout = new FlowLayout(Spacing, Spacing, Spacing);
    for (int i = 0; i < items.size(); ++i) {
        QCheckBox *const box = new QCheckBox(items.at(i), m_ui->widgetContent);
        box->setFocusPolicy(Qt::StrongFocus);
        box->setMinimumHeight(ButtonHeight);
        box->setChecked(items.at(i).trimmed() == checkedText.trimmed());
        m_checkBoxGroup->addButton(box, i);
        layout->addWidget(box);
    }
    m_checkBoxGroup->setExclusive(exclusive);
    setContentLayout(layout);
}

int SelectDialog::getCheckedIndex() const
{
    if (!m_checkBoxGroup) {
        return -1;
    }
    for (int i = 0; m_checkBoxGroup->button(i); ++i) {
        if (m_checkBoxGroup->button(i)->isChecked()) {
            return i;
        }
    }
    return -1;
}

// ---------------------------------------------------------------------------------------------- slider

void SelectDialog::setSliderMode(int minimum, int maximum, int step, int value, const QString &unit)
{
    if (m_contentLayout) {
        return;
    }
    m_minimum = minimum;
    m_maximum = qMax(minimum, maximum);
    m_step = step;
    m_unit = unit;

    QHBoxLayout *const layout = new QHBoxLayout;
    layout->setSpacing(Spacing);
    layout->setContentsMargins(Spacing, Spacing, Spacing, Spacing);
    addStepButton(layout, QLatin1String("-"), QLatin1String("btnDec"), SLOT(onSliderDecButtonClicked()));
    m_valueButton = new QPushButton(m_ui->widgetContent);
    m_valueButton->setObjectName(QLatin1String("btnValue"));
    m_valueButton->setMinimumSize(ValueButtonWidth, ButtonHeight);
    m_valueButton->setEnabled(false);
    layout->addWidget(m_valueButton);
    addStepButton(layout, QLatin1String("+"), QLatin1String("btnInc"), SLOT(onSliderIncButtonClicked()));
    setContentLayout(layout);
    setValue(value);
}

void SelectDialog::addStepButton(QLayout *layout, const QString &text, const QString &name, const char *slot)
{
    QPushButton *const button = new QPushButton(text, m_ui->widgetContent);
    button->setObjectName(name);
    button->setMinimumSize(StepButtonWidth, ButtonHeight);
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(RepeatDelay);
    button->setAutoRepeatInterval(RepeatInterval);
    connect(button, SIGNAL(clicked()), this, slot);
    layout->addWidget(button);
}

// 64 bits: a step past the limit must not overflow.
void SelectDialog::setValue(qint64 value)
{
    m_value = int(qBound(qint64(m_minimum), value, qint64(m_maximum)));
    m_valueButton->setText(QString::number(m_value) + m_unit);
}

void SelectDialog::onSliderIncButtonClicked()
{
    setValue(qint64(m_value) + m_step);
}

void SelectDialog::onSliderDecButtonClicked()
{
    setValue(qint64(m_value) - m_step);
}

QString SelectDialog::getSliderValueText() const
{
    return m_valueButton ? m_valueButton->text() : QString();
}

// ---------------------------------------------------------------------------------------------- dialog

void SelectDialog::setHint(const QString &hint)
{
    m_ui->labelHint->setText(hint);
    m_ui->labelHint->setVisible(!hint.isEmpty());
}

void SelectDialog::retranslate(const QStringList &texts)
{
    for (int i = 0; m_checkBoxGroup && i < texts.size(); ++i) {
        if (QAbstractButton *const box = m_checkBoxGroup->button(i)) {
            box->setText(texts.at(i));
        }
    }
    if (m_contentLabel && !texts.isEmpty()) {
        m_contentLabel->setText(texts.first());
    } else if (m_valueButton && !texts.isEmpty()) {
        m_unit = texts.first();
        setValue(m_value);
    }
}

void SelectDialog::hideButtons()
{
    m_ui->lineBottom->hide();
    m_ui->btnOk->hide();
    m_ui->btnCancel->hide();
}

QSize SelectDialog::sizeHint() const
{
    const int width = qMax(DialogWidth, OrbDialog::sizeHint().width());
    return QSize(width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                      : OrbDialog::sizeHint().height());
}

void SelectDialog::changeEvent(QEvent *event)
{
    OrbDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
    }
}

void SelectDialog::on_btnOk_clicked()
{
    accept();
    hide();
}

void SelectDialog::on_btnCancel_clicked()
{
    reject();
    hide();
}
