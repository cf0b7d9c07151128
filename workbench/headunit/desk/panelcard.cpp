#include "panelcard.h"

#include <QLabel>
#include <QVBoxLayout>

PanelCard::PanelCard(const QString &title, QWidget *parent)
    : QFrame(parent), m_title(new QLabel(title)), m_rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("card"));
    m_title->setObjectName(QStringLiteral("cardTitle"));
    m_rows->setContentsMargins(12, 8, 12, 12);
    m_rows->setSpacing(8);
    m_rows->addWidget(m_title);
}

void PanelCard::setTitle(const QString &title)
{
    m_title->setText(title);
}
