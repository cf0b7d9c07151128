#include "screenreader.h"

#include "orbhost.h"

#include <QAbstractItemModel>
#include <QMainWindow>

namespace {

const int MostRows = 256;

QString readable(const QModelIndex &index)
{
    const QVariant mark = index.data(Qt::CheckStateRole);
    return mark.isValid() ? QString(mark.toInt() == Qt::Unchecked ? "off" : "on")
                          : index.data().toString().simplified();
}

} // namespace

QString ScreenReader::State::words() const
{
    QStringList parts{text.simplified(), value, isHidden ? "hidden" : "", isEnabled ? "" : "disabled"};
    parts.removeAll(QString());
    return parts.join(", ");
}

bool ScreenReader::State::operator==(const State &other) const
{
    return isHidden == other.isHidden && isEnabled == other.isEnabled && text == other.text &&
           value == other.value;
}

ScreenReader::ScreenReader(QObject *parent) : QObject(parent) {}

QString ScreenReader::nameOf(const QWidget *window)
{
    return !window->objectName().isEmpty()    ? window->objectName()
           : !window->windowTitle().isEmpty() ? window->windowTitle()
                                              : QString(window->metaObject()->className());
}

// What a widget says: its text, number or switch, and whether it says it.
ScreenReader::Part ScreenReader::partOf(QWidget *widget, const QString &name)
{
    const QMetaObject *meta = widget->metaObject();
    const bool isSwitch = widget->property("checkable").toBool();
    return {widget,
            name,
            meta->property(meta->indexOfProperty("text")),
            meta->property(meta->indexOfProperty(isSwitch ? "checked" : "value")),
            {}};
}

ScreenReader::State ScreenReader::Part::state() const
{
    if (!widget) {
        return remembered;
    }
    return {text.isValid() ? text.read(widget).toString() : QString(),
            value.isValid() ? value.read(widget).toString() : QString(), widget->isHidden(),
            widget->isEnabled()};
}

ScreenReader::Texts ScreenReader::rowsOf(const List &list)
{
    Texts rows;
    const QAbstractItemModel *model = list.view->model();
    for (int row = 0; model && row < qMin(model->rowCount(), MostRows); ++row) {
        QStringList parts;
        for (int column = 0; column < model->columnCount(); ++column) {
            parts << readable(model->index(row, column));
        }
        const QString label = parts.takeFirst();
        QString name = QString("%1: %2").arg(list.window, label);
        if (label.isEmpty() || rows.contains(name)) {
            name += QString(" #%1").arg(row + 1);
        }
        parts.removeAll(QString());
        rows.insert(name, parts.join(", "));
    }
    return rows;
}

void ScreenReader::lookUp()
{
    m_windows = OrbHost::instance()->windows();
    for (const List &list : std::as_const(m_lists)) {
        if (list.view && list.view->model()) {
            list.view->model()->disconnect(this);
        }
    }
    m_parts.clear();
    m_lists.clear();
    for (const QWidget *window : std::as_const(m_windows)) {
        const QString name = nameOf(window);
        const QMainWindow *main = qobject_cast<const QMainWindow *>(window);
        const QWidget *titleBar = main ? main->menuWidget() : nullptr; // is the framework's
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            if (titleBar && (widget == titleBar || titleBar->isAncestorOf(widget))) {
                continue;
            }
            if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")) {
                m_parts << partOf(widget, name + '.' + widget->objectName());
            }
            QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget);
            if (view && view->model()) {
                const int number = int(m_lists.size());
                m_lists << List{view, name, {}, {}, true};
                const auto age = [this, number] { m_lists[number].isStale = true; };
                connect(view->model(), &QAbstractItemModel::dataChanged, this, age);
                connect(view->model(), &QAbstractItemModel::rowsInserted, this, age);
                connect(view->model(), &QAbstractItemModel::rowsRemoved, this, age);
                connect(view->model(), &QAbstractItemModel::modelReset, this, age);
            }
        }
    }
}

void ScreenReader::remember()
{
    if (m_windows != OrbHost::instance()->windows()) {
        m_remembered.clear();
        lookUp();
    }
    for (Part &part : m_parts) {
        const State state = part.state();
        if (!(state == part.remembered) || !m_remembered.contains(part.name)) {
            part.remembered = state;
            m_remembered.insert(part.name, state.words());
        }
    }
    for (List &list : m_lists) {
        if (list.view && list.isStale) {
            list.shown = rowsOf(list);
            list.isStale = false;
        }
        if (list.shown != list.remembered) {
            for (auto at = list.remembered.cbegin(); at != list.remembered.cend(); ++at) {
                m_remembered.remove(at.key());
            }
            list.remembered = list.shown;
            m_remembered.insert(list.shown);
        }
    }
}

ScreenReader::Texts ScreenReader::changes()
{
    // A window that has come or gone: everything is looked up anew, and its texts tell what is other.
    const bool isOther = m_windows != OrbHost::instance()->windows();
    if (isOther) {
        lookUp();
    }
    Texts changes;
    const auto note = [&](const QString &name, const QString &text) {
        const auto known = m_remembered.constFind(name);
        if (known == m_remembered.cend() || *known != text) {
            changes.insert(name, text);
        }
    };
    for (const Part &part : std::as_const(m_parts)) {
        const State state = part.state();
        if (isOther || !(state == part.remembered)) {
            note(part.name, state.words());
        }
    }
    for (List &list : m_lists) {
        if (list.view && list.isStale) {
            list.shown = rowsOf(list);
            list.isStale = false;
        }
        for (auto at = list.shown.cbegin();
             (isOther || list.shown != list.remembered) && at != list.shown.cend(); ++at) {
            note(at.key(), at.value());
        }
        for (auto at = list.remembered.cbegin();
             list.shown != list.remembered && at != list.remembered.cend(); ++at) {
            if (!list.shown.contains(at.key())) {
                changes.insert(at.key(), "gone");
            }
        }
    }
    return changes;
}
