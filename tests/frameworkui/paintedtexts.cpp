#include "paintedtexts.h"

#include "tablelistview.h"

#include <QAbstractItemModel>
#include <QAbstractScrollArea>
#include <QGraphicsView>
#include <QHeaderView>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOptionViewItem>
#include <QVector>
#include <QWidget>

namespace {

const QChar Ellipsis(0x2026);
const qreal Tolerance = 2; // pixels: metrics are rounded

struct PaintedText
{
    QString text;
    QRectF ink;
    QRectF room; ///< what the painter lets through, where it clips
};

/// Takes note of texts and paints nothing.
class Recorder : public QPaintEngine
{
public:
    Recorder() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &now) override
    {
        if (now.state() & DirtyTransform) {
            m_transform = now.transform();
        }
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF &place, const QTextItem &item) override
    {
        // As high as its ink, as wide as it was laid out.
        QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(place);
        ink.setLeft(place.x());
        ink.setWidth(item.width());
        const QRectF room = painter()->hasClipping() ? painter()->clipBoundingRect() : QRectF();
        texts << PaintedText{item.text(), m_transform.mapRect(ink),
                             room.isNull() ? room : m_transform.mapRect(room)};
    }

    QVector<PaintedText> texts;

private:
    QTransform m_transform;
};

class RecorderDevice : public QPaintDevice
{
public:
    explicit RecorderDevice(const QSize &size) : m_size(size) {}

    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const QVector<PaintedText> &texts() const { return m_recorder.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    QSize m_size;
    mutable Recorder m_recorder;
};

/// A place that texts are painted in, with who paints it.
struct Canvas
{
    QString name;
    QString text; ///< that the widget was given
    QRectF rect;
    QVector<PaintedText> texts;
};

Canvas cellCanvas(const TableListView *list, const QModelIndex &index)
{
    QStyleOptionViewItem option;
    option.initFrom(list);
    option.font = list->font();
    option.rect = QRect(0, 0, list->columnWidth(index.column()), list->rowHeight(index.row()));
    RecorderDevice device(option.rect.size());
    QPainter painter(&device);
    list->itemDelegate()->paint(&painter, option, index);
    painter.end();
    return {"row " + index.siblingAtColumn(0).data().toString(), QString(), option.rect, device.texts()};
}

QString nameOf(const QWidget *widget)
{
    return widget->objectName().isEmpty() ? widget->metaObject()->className() : widget->objectName();
}

/// The part of \a widget that its parents leave to be seen; what a finger can scroll to counts as seen.
QRectF seenRect(const QWidget *widget)
{
    QRectF seen = widget->rect();
    QPointF origin;
    bool scrolls = false;
    for (const QWidget *child = widget; child->parentWidget() && !child->isWindow();) {
        const QWidget *const parent = child->parentWidget();
        origin -= child->pos();
        scrolls = scrolls || qobject_cast<const QAbstractScrollArea *>(parent->parentWidget());
        QRectF room(origin, parent->size());
        if (scrolls) {
            room.setTop(seen.top());
            room.setBottom(seen.bottom());
        }
        seen &= room;
        child = parent;
    }
    return seen;
}

QVector<Canvas> canvases(const QWidget *shown)
{
    QVector<Canvas> result;
    QList<QWidget *> widgets = shown->findChildren<QWidget *>();
    widgets.prepend(const_cast<QWidget *>(shown));
    for (QWidget *widget : qAsConst(widgets)) {
        // What lies in a graphics view is asked by itself; a table of log lines may be narrower than its lines.
        const QWidget *const parent = widget->parentWidget();
        if (!widget->isVisible() || qobject_cast<const QGraphicsView *>(parent) ||
            (qobject_cast<const QAbstractItemView *>(parent) &&
             !qobject_cast<const TableListView *>(parent) && !qobject_cast<const QHeaderView *>(parent))) {
            continue;
        }
        if (const auto *list = qobject_cast<const TableListView *>(widget->parentWidget())) {
            for (int row = 0; widget == list->viewport() && row < list->model()->rowCount(); ++row) {
                for (int column = 0; column < list->model()->columnCount(); ++column) {
                    result << cellCanvas(list, list->model()->index(row, column));
                }
            }
            continue;
        }
        RecorderDevice device(widget->size());
        widget->render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
        result << Canvas{nameOf(widget), widget->property("text").toString(), seenRect(widget),
                         device.texts()};
    }
    return result;
}

/// Whether \a text is cut; \a whole: what the widget was given.
bool isCut(const PaintedText &text, const QRectF &seen, const QString &whole)
{
    const QRectF room =
        (text.room.isNull() ? seen : seen & text.room).adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance);
    return (text.text.contains(Ellipsis) && !whole.contains(Ellipsis)) ||
           (!text.ink.isEmpty() && !room.contains(text.ink));
}

} // namespace

QStringList PaintedTexts::cut(const QWidget *shown)
{
    QStringList result;
    for (const Canvas &canvas : canvases(shown)) {
        for (const PaintedText &text : canvas.texts) {
            if (isCut(text, canvas.rect, canvas.text)) {
                result << canvas.name + ": " + text.text;
            }
        }
    }
    return result;
}

QStringList PaintedTexts::untranslated(const QWidget *shown, const QString &allowed)
{
    // Letters that the pseudo language accents: tools/pseudo_translation.py
    static const QRegularExpression plain("[ACDEGHIJKLNORSTUWYZacdeghijklnorstuwyz]");
    const QRegularExpression known("^(" + allowed + ")$");
    QStringList result;
    for (const Canvas &canvas : canvases(shown)) {
        for (const PaintedText &text : canvas.texts) {
            if (text.text.contains(plain) && !known.match(text.text.trimmed()).hasMatch()) {
                result << canvas.name + ": " + text.text;
            }
        }
    }
    return result;
}
