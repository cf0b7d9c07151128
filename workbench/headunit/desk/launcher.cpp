#include "launcher.h"

#include "apptile.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QScroller>

namespace {
const int TileGap = 8;
const int TileWidth = 132;
} // namespace

bool Launcher::Entry::operator==(const Entry &other) const
{
    return kind == other.kind && id == other.id && title == other.title && normalIcon == other.normalIcon &&
           highlightedIcon == other.highlightedIcon;
}

Launcher::Launcher(QWidget *parent) : QWidget(parent), m_area(new QScrollArea), m_grid(new QGridLayout)
{
    QWidget *page = new QWidget;
    page->setObjectName(QStringLiteral("launcherPage"));
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(TileGap);
    m_grid->setAlignment(Qt::AlignTop);
    page->setLayout(m_grid);
    m_area->setObjectName(QStringLiteral("launcherArea"));
    m_area->setWidget(page);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_area->viewport(), QScroller::LeftMouseButtonGesture);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
}

int Launcher::columns() const
{
    return qMax(1, (width() + TileGap) / (TileWidth + TileGap));
}

void Launcher::setEntries(const QVector<Entry> &entries)
{
    if (entries == m_entries) {
        return;
    }
    m_entries = entries;
    qDeleteAll(m_tiles);
    m_tiles.clear();
    for (const Entry &entry : entries) {
        AppTile *tile = new AppTile(entry.title, entry.normalIcon, entry.highlightedIcon);
        tile->setCheckable(entry.kind == Entry::Source);
        connect(tile, &AppTile::clicked, this, [this, entry] {
            setMode(m_mode); // a source is lit by the mode, not by the click
            Q_EMIT chosen(entry);
        });
        m_tiles << tile;
    }
    arrange();
    setMode(m_mode);
}

void Launcher::arrange()
{
    for (int i = 0; i < m_tiles.size(); ++i) {
        m_grid->addWidget(m_tiles.at(i), i / columns(), i % columns(), Qt::AlignHCenter);
        m_tiles.at(i)->show();
    }
}

void Launcher::setMode(uint mode)
{
    m_mode = mode;
    for (int i = 0; i < m_tiles.size(); ++i) {
        m_tiles.at(i)->setChecked(m_entries.at(i).kind == Entry::Source && m_entries.at(i).id == mode);
    }
}

void Launcher::navigate(int key)
{
    if (m_tiles.isEmpty()) {
        return;
    }
    int at = -1;
    for (int i = 0; i < m_tiles.size(); ++i) {
        at = m_tiles.at(i) == window()->focusWidget() ? i : at;
    }
    if (key == Qt::Key_Enter) {
        if (at >= 0) {
            m_tiles.at(at)->click();
        }
        return;
    }
    const int step = key == Qt::Key_Left    ? -1
                     : key == Qt::Key_Right ? 1
                     : key == Qt::Key_Up    ? -columns()
                     : key == Qt::Key_Down  ? columns()
                                            : 0;
    const int next = at < 0 ? 0 : at + step;
    if (next >= 0 && next < m_tiles.size()) {
        m_tiles.at(next)->setFocus();
        m_area->ensureWidgetVisible(m_tiles.at(next));
    }
}

void Launcher::resizeEvent(QResizeEvent *)
{
    arrange();
}
