#include "screenwatch.h"

#include "headunit.h"

#include "orbhost.h"

#include <QAbstractItemView>
#include <QCryptographicHash>
#include <QDataStream>
#include <QMetaProperty>
#include <QWidget>

namespace {

const int MostRows = 256;

void addProperties(const QWidget *widget, QDataStream *stream)
{
    const QMetaObject *meta = widget->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QVariant value = meta->property(i).read(widget);
        if (value.canConvert<QString>()) {
            *stream << value.toString();
        }
    }
    for (const QByteArray &name : widget->dynamicPropertyNames()) {
        *stream << widget->property(name.constData()).toString();
    }
    *stream << widget->isHidden() << widget->isEnabled() << widget->styleSheet();
}

void addRows(const QAbstractItemModel *model, QDataStream *stream)
{
    for (int row = 0; model && row < qMin(model->rowCount(), MostRows); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), int(Qt::UserRole)}) {
                *stream << index.data(role).toString();
            }
        }
    }
}

} // namespace

void ScreenWatch::openWindows(HeadUnit *unit)
{
    for (const unsigned int app : OrbHost::instance()->titledApps()) {
        unit->showApp(app);
    }
}

QByteArray ScreenWatch::fingerprint()
{
    QByteArray text;
    QDataStream stream(&text, QIODevice::WriteOnly);
    for (QWidget *window : OrbHost::instance()->windows()) {
        addProperties(window, &stream);
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            addProperties(widget, &stream);
            if (const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget)) {
                addRows(view->model(), &stream);
            }
        }
    }
    return QCryptographicHash::hash(text, QCryptographicHash::Md5);
}
