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

// What a widget says: its text, number or switch, and whether it says it.
QString stateOf(const QWidget *widget)
{
    QStringList parts;
    for (const char *name : {"text", "value", "checked"}) {
        const QVariant value = widget->property(name);
        if (value.isValid() &&
            (value.userType() != QMetaType::Bool || widget->property("checkable").toBool())) {
            parts << value.toString().simplified();
        }
    }
    parts << (widget->isHidden() ? "hidden" : "") << (widget->isEnabled() ? "" : "disabled");
    parts.removeAll(QString());
    return parts.join(", ");
}

void addRowTexts(const QString &list, const QAbstractItemModel *model, QMap<QString, QString> *texts)
{
    for (int row = 0; model && row < qMin(model->rowCount(), MostRows); ++row) {
        QStringList parts;
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), int(Qt::UserRole)}) {
                parts << index.data(role).toString();
            }
        }
        const QString name = parts.takeFirst();
        parts.removeAll(QString());
        texts->insert(QString("%1 %2").arg(list, name.isEmpty() ? QString("#%1").arg(row) : name),
                      parts.join(", "));
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

QMap<QString, QString> ScreenWatch::texts()
{
    QMap<QString, QString> texts;
    for (QWidget *window : OrbHost::instance()->windows()) {
        const QString name = window->objectName().isEmpty() ? QString(window->metaObject()->className())
                                                            : window->objectName();
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            const QString full = name + '.' + widget->objectName();
            if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) {
                continue;
            }
            texts.insert(full, stateOf(widget));
            if (const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget)) {
                addRowTexts(full, view->model(), &texts);
            }
        }
    }
    return texts;
}
