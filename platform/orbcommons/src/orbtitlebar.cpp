#include "orbtitlebar.h"

#include "orbqtcompat.h"
#include "windowstack.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const int BarHeight = 72;
const QSize ButtonSize(96, 64);

QPushButton *iconButton(const char *name, const char *icon, QWidget *parent)
{
    QPushButton *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(QIcon(QLatin1String(icon)));
    button->setIconSize(QSize(40, 40));
    button->setFixedSize(ButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

OrbTitleBar::OrbTitleBar(QWidget *window) : QWidget(window), m_label(new QLabel(this))
{
    setObjectName(QLatin1String("orbTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(BarHeight);
    m_label->setObjectName(QLatin1String("orbTitle"));
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setTextFormat(Qt::PlainText);
    // The bar decides what fits; a long title must not widen the window.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    QPushButton *back = iconButton("btnBack", ":/orb/icons/back.png", this);
    QPushButton *home = iconButton("btnHome", ":/orb/icons/home.png", this);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(8);
    row->addWidget(back);
    row->addWidget(m_label, 1);
    row->addWidget(home);
    connect(back, SIGNAL(clicked()), window, SLOT(back()));
    connect(home, SIGNAL(clicked()), WindowStack::instance(), SLOT(goHome()));
}

void OrbTitleBar::setTitle(const QString &title)
{
    m_title = title;
    elideTitle();
}

void OrbTitleBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    elideTitle();
}

void OrbTitleBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        elideTitle();
    }
}

void OrbTitleBar::elideTitle()
{
    m_label->setText(m_label->fontMetrics().elidedText(m_title, Qt::ElideRight, m_label->width()));
}
