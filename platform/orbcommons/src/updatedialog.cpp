#include "updatedialog.h"

#include "orbqtcompat.h"
#include "orbtrace.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const int Margin = 32;
// The same in every state, so that nothing jumps.
const int Width = 680;
const int DecoderFirmware = 1;
// Nobody reports the end: a silence after everything was given is the end, before that the accessory stands still.
const int SilenceTime = 4000; // ms

void trace(const char *call, int number)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called(QLatin1String("UpdateDialog"), QLatin1String(call),
                                   QVariantList() << number);
    }
}

bool everythingGiven(const UpdateDialog *dialog)
{
    return dialog->property("everythingGiven").toBool();
}

QLabel *textLabel(const char *name, QWidget *parent)
{
    QLabel *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

class UpdateDialog::Private
{
public:
    enum State { Asking, Running, Stalled, Done, Failed };

    Private() : state(Asking), kind(0), code(0), retry(false) {}

    void build(UpdateDialog *dialog);
    void arrange(UpdateDialog *dialog);
    void enter(State next);
    void showTexts();
    QString message() const;

    State state;
    int kind;
    int code;
    bool retry; ///< the user had accepted before it failed
    QLabel *picture;
    QLabel *title;
    QLabel *text;
    QLabel *warning;
    QProgressBar *bar;
    QPushButton *ok;
    QPushButton *cancel;
    QTimer *silence;
};

void UpdateDialog::Private::build(UpdateDialog *dialog)
{
    picture = new QLabel(dialog);
    picture->setObjectName(QLatin1String("picture"));
    title = textLabel("txtTitle", dialog);
    text = textLabel("txtMessage", dialog);
    warning = textLabel("txtWarning", dialog);
    bar = new QProgressBar(dialog);
    bar->setObjectName(QLatin1String("progress"));
    bar->setRange(0, 100);
    ok = new QPushButton(dialog);
    ok->setObjectName(QLatin1String("btnOk"));
    cancel = new QPushButton(dialog);
    cancel->setObjectName(QLatin1String("btnCancel"));
    silence = new QTimer(dialog);
    silence->setObjectName(QLatin1String("silence"));
    silence->setSingleShot(true);
    silence->setInterval(SilenceTime);
}

void UpdateDialog::Private::arrange(UpdateDialog *dialog)
{
    dialog->setMinimumWidth(Width);
    QHBoxLayout *head = new QHBoxLayout;
    head->setSpacing(24);
    head->addWidget(picture, 0, Qt::AlignTop);
    QVBoxLayout *texts = new QVBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(title);
    texts->addWidget(text);
    head->addLayout(texts, 1);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->addWidget(cancel);
    buttons->addWidget(ok);

    QVBoxLayout *column = new QVBoxLayout(dialog);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(24);
    column->addLayout(head);
    column->addWidget(bar);
    column->addWidget(warning);
    column->addLayout(buttons);
}

void UpdateDialog::Private::enter(State next)
{
    state = next;
    if (state == Running) {
        silence->start();
    } else {
        silence->stop();
    }
    bar->setVisible(state == Running || state == Stalled);
    warning->setVisible(state == Running || state == Stalled);
    ok->setVisible(state == Asking || state == Stalled || (state == Failed && retry));
    cancel->setVisible(state != Running);
    showTexts();
}

void UpdateDialog::Private::showTexts()
{
    const char *pictures[] = {"update", "update", "failed", "done", "failed"};
    picture->setPixmap(
        QPixmap(QString(QLatin1String(":/orb/icons/%1.png")).arg(QLatin1String(pictures[state]))));
    const QString titles[] = {UpdateDialog::tr("Update available"), UpdateDialog::tr("Updating"),
                              UpdateDialog::tr("Update has stalled"), UpdateDialog::tr("Update finished"),
                              UpdateDialog::tr("Update failed")};
    title->setText(titles[state]);
    text->setText(message());
    warning->setText(UpdateDialog::tr("Do not remove the disk and do not switch off the ignition."));
    ok->setText(state == Asking ? UpdateDialog::tr("Update") : UpdateDialog::tr("Try again"));
    cancel->setText(state == Asking ? UpdateDialog::tr("Later") : UpdateDialog::tr("Close"));
}

QString UpdateDialog::Private::message() const
{
    switch (state) {
    case Asking:
        return kind == DecoderFirmware
                   ? UpdateDialog::tr("New firmware for the CAN decoder was found on the disk. Update now?")
                   : UpdateDialog::tr("New firmware was found on the disk. Update now?");
    case Running:
        return UpdateDialog::tr("The new firmware is being transferred.");
    case Stalled:
        return UpdateDialog::tr(
            "No more data is being asked for. Wait a minute; if it does not go on, try again.");
    case Done:
        return UpdateDialog::tr("All data was transferred. The disk can be removed.");
    case Failed:
        break;
    }
    return UpdateDialog::tr("The update was interrupted (code %1). Check the disk.").arg(code);
}

UpdateDialog::UpdateDialog(QWidget *parent) : OrbDialog(parent), d(new Private)
{
    setModal(true);
    d->build(this);
    d->arrange(this);
    d->enter(Private::Asking);
    connect(d->ok, SIGNAL(clicked()), SLOT(onAccepted()));
    connect(d->cancel, SIGNAL(clicked()), SLOT(reject()));
    connect(d->silence, SIGNAL(timeout()), SLOT(onSilence()));
}

UpdateDialog::~UpdateDialog()
{
    delete d;
}

void UpdateDialog::showUpdateDlg(int kind)
{
    trace("showUpdateDlg", kind);
    d->kind = kind;
    d->retry = d->retry && d->state == Private::Running;
    // A second disk does not interrupt a transfer.
    if (d->state != Private::Running) {
        d->enter(Private::Asking);
    }
    setVisible(true);
}

void UpdateDialog::updatePercent(int percent)
{
    trace("updatePercent", percent);
    d->bar->setValue(qBound(0, percent, 100));
    d->enter(Private::Running);
}

void UpdateDialog::setUpdateFailed(int code)
{
    trace("setUpdateFailed", code);
    const bool begun =
        d->state == Private::Running || d->state == Private::Stalled || d->state == Private::Done;
    // A disk that is taken out after its last packet is no failure.
    if (begun && everythingGiven(this)) {
        d->enter(Private::Done);
        return;
    }
    d->code = code;
    d->retry = d->retry || begun;
    d->enter(Private::Failed);
}

void UpdateDialog::onAccepted()
{
    d->bar->setValue(0);
    d->retry = true;
    d->enter(Private::Running);
    Q_EMIT acceptUpdate();
}

void UpdateDialog::onSilence()
{
    d->enter(everythingGiven(this) ? Private::Done : Private::Stalled);
}

void UpdateDialog::changeEvent(QEvent *event)
{
    OrbDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->showTexts();
    }
}
