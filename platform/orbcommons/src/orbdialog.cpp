#include "orbdialog.h"

#include "windowstack.h"

class OrbDialog::Private
{
public:
    explicit Private(int dialogKind) : kind(dialogKind == Choice ? Choice : Overlay) {}

    const int kind;
};

OrbDialog::OrbDialog(QWidget *parent, int kind) : QDialog(parent), d(new Private(kind))
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_NoMousePropagation);
    const bool choice = d->kind == Choice;
    WindowStack::instance()->add(this, choice ? WindowStack::ChoiceDialog : WindowStack::OverlayDialog);
}

OrbDialog::~OrbDialog()
{
    WindowStack::instance()->remove(this);
    delete d;
}

int OrbDialog::kind() const
{
    return d->kind;
}

void OrbDialog::setVisible(bool visible)
{
    WindowStack *stack = WindowStack::instance();
    stack->traceVisibility(this, visible);
    if (visible) {
        stack->place(this);
    }
    QDialog::setVisible(visible);
    if (visible) {
        stack->shown(this);
    } else {
        stack->hidden(this);
    }
}

void OrbDialog::done(int result)
{
    QDialog::done(result);
}

void OrbDialog::accept()
{
    QDialog::accept();
}

void OrbDialog::reject()
{
    QDialog::reject();
}

void OrbDialog::back()
{
    reject();
}
