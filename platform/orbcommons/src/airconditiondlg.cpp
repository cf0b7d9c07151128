#include "airconditiondlg.h"

#include "climatepainter.h"
#include "orbqtcompat.h"
#include "orbtrace.h"

#include <QPainter>

namespace {

const int ByTheCar = 0xFF;
const int AllDirections = 7;
const int MostFanLevels = 8;
const int DisplayHeight = 190;

void trace(const char *call, const QVariantList &args)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called(QLatin1String("AirConditionDlg"), QLatin1String(call), args);
    }
}

} // namespace

class AirConditionDlg::Private
{
public:
    ClimateState state;
};

AirConditionDlg::AirConditionDlg(QWidget *parent) : OrbDialog(parent), d(new Private)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // what lies below need not be painted for each change
    setObjectName(QLatin1String("airConditionDlg"));
}

AirConditionDlg::~AirConditionDlg()
{
    delete d;
}

void AirConditionDlg::setPTCModeVisible(bool visible)
{
    trace("setPTCModeVisible", QVariantList() << visible);
    d->state.heaterMark = visible;
    update();
}

void AirConditionDlg::setTemperatureRange(double minimum, double maximum)
{
    trace("setTemperatureRange", QVariantList() << minimum << maximum);
    if (!(minimum < maximum)) {
        return;
    }
    d->state.minimum = minimum;
    d->state.maximum = maximum;
    update();
}

void AirConditionDlg::setAirConditionEnable(bool on)
{
    trace("setAirConditionEnable", QVariantList() << on);
    d->state.on = on;
    update();
}

void AirConditionDlg::setACEnable(bool on)
{
    trace("setACEnable", QVariantList() << on);
    d->state.compressor = on;
    update();
}

void AirConditionDlg::setAutoModeEnable(bool on)
{
    trace("setAutoModeEnable", QVariantList() << on);
    d->state.automatic = on;
    update();
}

void AirConditionDlg::setWindDirectEx(int direction)
{
    trace("setWindDirectEx", QVariantList() << direction);
    d->state.setDirection(direction & AllDirections);
    update();
}

void AirConditionDlg::setWindDirect(int direction)
{
    trace("setWindDirect", QVariantList() << direction);
    const bool byTheCar = direction == ByTheCar;
    d->state.setDirection(byTheCar ? int(ClimateState::ChosenByCar) : direction & AllDirections);
    update();
}

void AirConditionDlg::setAirVolume(int level)
{
    trace("setAirVolume", QVariantList() << level);
    if (level == MostFanLevels) {
        d->state.fanLevels = MostFanLevels;
    }
    const bool inRange = level >= 0 && level <= d->state.fanLevels;
    d->state.fan = level == ByTheCar ? int(ClimateState::ChosenByCar) : inRange ? level : d->state.fanLevels;
    update();
}

void AirConditionDlg::setCirculationMode(int mode)
{
    trace("setCirculationMode", QVariantList() << mode);
    d->state.circulation = mode == ByTheCar ? int(ClimateState::ChosenByCar) : int(mode != 0);
    update();
}

void AirConditionDlg::setDefrostingMode()
{
    trace("setDefrostingMode", QVariantList());
    d->state.defrosting = true;
    update();
}

void AirConditionDlg::setTemperature(const QString &left, const QString &right)
{
    trace("setTemperature", QVariantList() << left << right);
    d->state.left = left;
    d->state.right = right;
    update();
}

QSize AirConditionDlg::sizeHint() const
{
    return QSize(1024, DisplayHeight);
}

void AirConditionDlg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ClimatePainter(&painter, rect(), font()).paint(d->state);
}

// A press that is accepted is followed by its release, wherever that is.
void AirConditionDlg::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void AirConditionDlg::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(OrbQt::mousePos(event))) {
        reject();
    }
}

void AirConditionDlg::changeEvent(QEvent *event)
{
    OrbDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
}
