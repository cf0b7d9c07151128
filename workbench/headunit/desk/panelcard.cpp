#include "panelcard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const int Gap = 8;
} // namespace

PanelCard::PanelCard(const QString &title, QWidget *parent)
    : QFrame(parent), m_title(new QLabel(title)), m_rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("card"));
    m_title->setObjectName(QStringLiteral("cardTitle"));
    m_rows->setContentsMargins(12, 8, 12, 12);
    m_rows->setSpacing(Gap);
    m_rows->addWidget(m_title);
}

void PanelCard::setTitle(const QString &title)
{
    m_title->setText(title);
}

QHBoxLayout *PanelCard::pair(QWidget *left, QWidget *right)
{
    QHBoxLayout *row = new QHBoxLayout;
    row->setSpacing(Gap);
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return row;
}

QLabel *PanelCard::plainLabel(const char *objectName)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton *PanelCard::chip(const QString &text)
{
    QPushButton *button = new QPushButton(text);
    button->setObjectName(QStringLiteral("chip"));
    return button;
}
