#include "apppage.h"

#include "carview.h"
#include "deskcolours.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {
const uint cameraAroundTheCar = 513;
const int margin = 16;
const int pictureSize = 112;
} // namespace

AppPage::AppPage(QWidget *parent) : QWidget(parent), m_carView(new CarView)
{
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin / 2, margin, margin);
    layout->addWidget(m_carView);
    hide();
}

void AppPage::setApplication(uint appId, const QString &title, const QPixmap &icon)
{
    m_appId = appId;
    m_title = title;
    m_icon = icon;
    m_carView->setVisible(appId == cameraAroundTheCar);
    update();
}

void AppPage::setCarState(const CarState &state)
{
    m_carView->setState(state);
}

void AppPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), DeskColours::ground);
    if (m_carView->isVisible()) {
        return;
    }
    const QPoint middle = rect().center();
    painter.drawPixmap(
        QRect(middle.x() - pictureSize / 2, middle.y() - pictureSize, pictureSize, pictureSize), m_icon);
    QFont font = painter.font();
    font.setPixelSize(32);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(DeskColours::text);
    const QRect titleLine(margin, middle.y() + margin, width() - 2 * margin, 48);
    painter.drawText(titleLine, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, titleLine.width()));
    font.setPixelSize(20);
    font.setBold(false);
    painter.setFont(font);
    painter.setPen(DeskColours::dim);
    painter.drawText(titleLine.translated(0, 48), Qt::AlignCenter, tr("This picture comes from the car."));
}
