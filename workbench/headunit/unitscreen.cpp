#include "unitscreen.h"

#include "orbhost.h"

#include <QImageWriter>
#include <QPixmap>

UnitScreen::UnitScreen(const QSize &size, QWidget *parent)
    : QWidget(parent), m_statusArea(new QWidget(this)), m_windowArea(new QWidget(this))
{
    setObjectName("unitScreen");
    setFixedSize(size);
    m_statusArea->setGeometry(0, 0, size.width(), StatusHeight);
    m_windowArea->setGeometry(0, StatusHeight, size.width(), size.height() - StatusHeight);
    QPalette dark = palette();
    dark.setColor(QPalette::Window, QColor("#0E1116"));
    setPalette(dark);
    setAutoFillBackground(true);
    OrbHost::instance()->setScreen(this, m_windowArea);
}

UnitScreen::~UnitScreen()
{
    if (OrbHost::instance()->screen() == this) {
        OrbHost::instance()->setScreen(nullptr, nullptr);
    }
}

bool UnitScreen::saveScreenshot(const QString &path, QString *error)
{
    QImageWriter writer(path, "png");
    // A screen that nobody looks at does without painting, see HeadUnitProgram; what it shows is painted
    // here.
    const bool isPainted = updatesEnabled();
    setUpdatesEnabled(true);
    const bool ok = writer.write(grab().toImage());
    setUpdatesEnabled(isPainted);
    if (!ok) {
        *error = path + ": " + writer.errorString();
    }
    return ok;
}
