#include "orbskin.h"

#include "orbpalette.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace {

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, OrbPalette::ground());
    palette.setColor(QPalette::WindowText, OrbPalette::text());
    palette.setColor(QPalette::Base, OrbPalette::panel());
    palette.setColor(QPalette::AlternateBase, OrbPalette::raised());
    palette.setColor(QPalette::Text, OrbPalette::text());
    palette.setColor(QPalette::Button, OrbPalette::raised());
    palette.setColor(QPalette::ButtonText, OrbPalette::text());
    palette.setColor(QPalette::BrightText, OrbPalette::warning());
    palette.setColor(QPalette::Highlight, OrbPalette::accent());
    palette.setColor(QPalette::HighlightedText, OrbPalette::ground());
    palette.setColor(QPalette::ToolTipBase, OrbPalette::raised());
    palette.setColor(QPalette::ToolTipText, OrbPalette::text());
    palette.setColor(QPalette::Disabled, QPalette::WindowText, OrbPalette::dim());
    palette.setColor(QPalette::Disabled, QPalette::Text, OrbPalette::dim());
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, OrbPalette::dim());
    return palette;
}

} // namespace

void applyOrbSkin(QApplication &application)
{
    Q_INIT_RESOURCE(orbskin);
    // One base style everywhere, so that the style sheet meets no surprises; a Qt without it keeps its own.
    if (QStyle *style = QStyleFactory::create(QLatin1String("Fusion"))) {
        application.setStyle(style);
    }
    application.setPalette(darkPalette());
    QFont font(QLatin1String("Noto Sans"));
    font.setPixelSize(20);
    application.setFont(font);
    QFile sheet(QLatin1String(":/orb/skin.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    }
}
