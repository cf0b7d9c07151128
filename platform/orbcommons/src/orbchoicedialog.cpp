#include "orbchoicedialog.h"

#include "fingerscrollarea.h"
#include "orbqtcompat.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const int Margin = 24;
const int RowHeight = 64;
const int RowGap = 8;
// Where the screen has no room for all rows they scroll, so many at least stay in sight.
const int FewestRows = 2;

/// Takes a tap anywhere on its row, not only on mark and text.
class ChoiceRow : public QCheckBox
{
public:
    ChoiceRow(const QString &text, QWidget *parent) : QCheckBox(text, parent)
    {
        setMinimumHeight(RowHeight);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

protected:
    bool hitButton(const QPoint &place) const override { return rect().contains(place); }
};

QLabel *titleLabel(const QString &title, QWidget *parent)
{
    QLabel *label = new QLabel(title, parent);
    label->setObjectName(QLatin1String("txtTitle"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QWidget *choiceRows(const QStringList &texts, int current, QButtonGroup *group)
{
    QWidget *rows = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(rows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(RowGap);
    for (int i = 0; i < texts.size(); ++i) {
        QCheckBox *box = new ChoiceRow(texts.at(i), rows);
        box->setChecked(i == current);
        group->addButton(box, i);
        column->addWidget(box);
    }
    return rows;
}

QPushButton *dialogButton(const char *name, const QString &text, QWidget *parent)
{
    QPushButton *button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

OrbChoiceDialog::OrbChoiceDialog(const QString &title, const QStringList &texts, int current, QWidget *parent)
    : OrbDialog(parent), m_group(new QButtonGroup(this))
{
    setModal(true);
    setWindowTitle(title);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(16);
    column->addWidget(titleLabel(title, this));

    FingerScrollArea *area = new FingerScrollArea(choiceRows(texts, current, m_group), this);
    area->setMinimumHeight(qMin(FewestRows, int(texts.size())) * (RowHeight + RowGap));
    column->addWidget(area);

    QPushButton *ok = dialogButton("btnOk", tr("OK"), this);
    QPushButton *cancel = dialogButton("btnCancel", tr("Cancel"), this);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->addWidget(cancel);
    buttons->addWidget(ok);
    column->addLayout(buttons);
    connect(ok, SIGNAL(clicked()), SLOT(accept()));
    connect(cancel, SIGNAL(clicked()), SLOT(reject()));
}

int OrbChoiceDialog::chosenIndex() const
{
    return m_group->checkedId();
}

int OrbChoiceDialog::choose(const QString &title, const QStringList &texts, int current)
{
    const QPointer<OrbChoiceDialog> dialog(new OrbChoiceDialog(title, texts, current));
    const int result = dialog->exec();
    const int chosen = dialog && result == Accepted ? dialog->chosenIndex() : -1;
    delete dialog;
    return chosen;
}

void OrbChoiceDialog::showEvent(QShowEvent *event)
{
    OrbDialog::showEvent(event);
    if (QAbstractButton *chosen = m_group->checkedButton()) {
        findChild<QScrollArea *>()->ensureWidgetVisible(chosen, 0, RowHeight / 2);
    }
}

void OrbChoiceDialog::changeEvent(QEvent *event)
{
    OrbDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) {
        return;
    }
    findChild<QPushButton *>(QLatin1String("btnOk"))->setText(tr("OK"));
    findChild<QPushButton *>(QLatin1String("btnCancel"))->setText(tr("Cancel"));
}
