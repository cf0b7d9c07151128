#include "homepage.h"

#include "carview.h"
#include "deskcolours.h"
#include "keycard.h"
#include "launcher.h"

#include <QGridLayout>
#include <QPainter>

namespace {
const int Gap = 16;
} // namespace

HomePage::HomePage(const UnitControls *controls, QWidget *parent)
    : QWidget(parent), m_launcher(new Launcher), m_carView(new CarView)
{
    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(Gap, Gap / 2, Gap, Gap);
    layout->setSpacing(Gap);
    layout->addWidget(m_launcher, 0, 0);
    layout->addWidget(new KeyCard(controls), 1, 0);
    layout->addWidget(m_carView, 0, 1, 2, 1);
    layout->setColumnStretch(0, 62);
    layout->setColumnStretch(1, 38);
}

void HomePage::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), DeskColours::Ground);
}
