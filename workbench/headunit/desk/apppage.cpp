#include "apppage.h"

#include "carview.h"
#include "deskcolours.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {
const uint CameraAroundTheCar = 513;
const int Margin = 16;
const int PictureSize = 112;
} // namespace

AppPage::AppPage(QWidget *parent) : QWidget(parent), m_carView(new CarView)
{
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, Margin / 2, Margin, Margin);
    layout->addWidget(m_carView);
    hide();
}

void AppPage::setApplication(uint appId, const QString &title, const QPixmap &icon)
{
    m_appId = appId;
    m_title = title;
    m_icon = icon;
    m_carView->setVisible(appId == CameraAroundTheCar);
    update();
}

void AppPage::setCarState(const CarState &state)
{
    m_carView->setState(state);
}

void AppPage::setDoubt(const QString &doubt)
{
    m_carView->setDoubt(doubt);
}

void AppPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), DeskColours::Ground);
    if (m_carView->isVisible()) {
        return;
    }
    const QPoint middle = rect().center();
    painter.drawPixmap(
        QRect(middle.x() - PictureSize / 2, middle.y() - PictureSize, PictureSize, PictureSize), m_icon);
    QFont font = painter.font();
    font.setPixelSize(32);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(DeskColours::Text);
    const QRect titleLine(Margin, middle.y() + Margin, width() - 2 * Margin, 48);
    painter.drawText(titleLine, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, titleLine.width()));
    font.setPixelSize(20);
    font.setBold(false);
    painter.setFont(font);
    painter.setPen(DeskColours::Dim);
    painter.drawText(titleLine.translated(0, 48), Qt::AlignCenter, tr("This picture comes from the car."));
}
