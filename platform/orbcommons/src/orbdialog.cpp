#include "orbdialog.h"

#include "windowstack.h"

OrbDialog::OrbDialog(QWidget *parent) : QDialog(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_NoMousePropagation);
    WindowStack::instance()->add(this, WindowStack::OverlayDialog);
}

OrbDialog::~OrbDialog()
{
    WindowStack::instance()->remove(this);
}

void OrbDialog::setVisible(bool visible)
{
    WindowStack *stack = WindowStack::instance();
    stack->traceVisibility(this, visible);
    if (visible) {
        stack->setKind(this, isModal() ? WindowStack::ModalDialog : WindowStack::OverlayDialog);
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
