#include "airconditiondlg.h"

#include "climatepainter.h"
#include "orbqtcompat.h"
#include "orbtrace.h"

#include <QPaintEvent>
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
    explicit Private(AirConditionDlg *display) : dialog(display), isNewsPosted(false) {}

    // The state has changed. A package sets all that it tells one after the other, and some of it twice: what became
    // of it is looked at when it is through.
    void change()
    {
        if (!dialog->isVisible()) {
            shown = state;
        } else if (!isNewsPosted) {
            isNewsPosted = true;
            QMetaObject::invokeMethod(dialog, "showNews", Qt::QueuedConnection);
        }
    }

    AirConditionDlg *const dialog;
    ClimateState state;
    ClimateState shown; // what the screen shows, or will at the next paint
    bool isNewsPosted;
};

AirConditionDlg::AirConditionDlg(QWidget *parent) : OrbDialog(parent), d(new Private(this))
{
    setObjectName(QLatin1String("airConditionDlg"));
    setAttribute(Qt::WA_OpaquePaintEvent); // what lies below need not be painted
}

AirConditionDlg::~AirConditionDlg()
{
    delete d;
}

void AirConditionDlg::setPTCModeVisible(bool visible)
{
    trace("setPTCModeVisible", QVariantList() << visible);
    d->state.heaterMark = visible;
    d->change();
}

void AirConditionDlg::setTemperatureRange(double minimum, double maximum)
{
    trace("setTemperatureRange", QVariantList() << minimum << maximum);
    if (!(minimum < maximum)) {
        return;
    }
    d->state.minimum = minimum;
    d->state.maximum = maximum;
    d->change();
}

void AirConditionDlg::setAirConditionEnable(bool on)
{
    trace("setAirConditionEnable", QVariantList() << on);
    d->state.on = on;
    d->change();
}

void AirConditionDlg::setACEnable(bool on)
{
    trace("setACEnable", QVariantList() << on);
    d->state.compressor = on;
    d->change();
}

void AirConditionDlg::setAutoModeEnable(bool on)
{
    trace("setAutoModeEnable", QVariantList() << on);
    d->state.automatic = on;
    d->change();
}

void AirConditionDlg::setWindDirectEx(int direction)
{
    trace("setWindDirectEx", QVariantList() << direction);
    d->state.setDirection(direction & AllDirections);
    d->change();
}

void AirConditionDlg::setWindDirect(int direction)
{
    trace("setWindDirect", QVariantList() << direction);
    const bool byTheCar = direction == ByTheCar;
    d->state.setDirection(byTheCar ? int(ClimateState::ChosenByCar) : direction & AllDirections);
    d->change();
}

void AirConditionDlg::setAirVolume(int level)
{
    trace("setAirVolume", QVariantList() << level);
    if (level == MostFanLevels) {
        d->state.fanLevels = MostFanLevels;
    }
    const bool inRange = level >= 0 && level <= d->state.fanLevels;
    d->state.fan = level == ByTheCar ? int(ClimateState::ChosenByCar) : inRange ? level : d->state.fanLevels;
    d->change();
}

void AirConditionDlg::setCirculationMode(int mode)
{
    trace("setCirculationMode", QVariantList() << mode);
    d->state.circulation = mode == ByTheCar ? int(ClimateState::ChosenByCar) : int(mode != 0);
    d->change();
}

void AirConditionDlg::setDefrostingMode()
{
    trace("setDefrostingMode", QVariantList());
    d->state.defrosting = true;
    d->change();
}

void AirConditionDlg::setTemperature(const QString &left, const QString &right)
{
    trace("setTemperature", QVariantList() << left << right);
    d->state.left = left;
    d->state.right = right;
    d->change();
}

void AirConditionDlg::showNews()
{
    d->isNewsPosted = false;
    update(ClimatePainter::difference(d->shown, d->state, rect()));
    d->shown = d->state;
}

QSize AirConditionDlg::sizeHint() const
{
    return QSize(1024, DisplayHeight);
}

void AirConditionDlg::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    ClimatePainter(&painter, rect(), font()).paint(d->state, event->region());
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
