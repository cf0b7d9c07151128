#ifndef LAUNCHER_H
#define LAUNCHER_H

#include <QVector>
#include <QWidget>

class AppTile;
class QGridLayout;
class QScrollArea;

/// The unit's tiles: its sources first, then what the plug-in has registered. More tiles than the page has
/// room for are reached by dragging.
class Launcher : public QWidget
{
    Q_OBJECT

public:
    struct Entry
    {
        enum Kind { Source, Application, Window };
        Kind kind;
        uint id; ///< mode of a source, id of an application
        QString title;
        QString normalIcon;
        QString highlightedIcon;

        bool operator==(const Entry &other) const;
    };

    explicit Launcher(QWidget *parent = nullptr);

    /// Shows \a entries in their order; tiles are built again only when something differs.
    void setEntries(const QVector<Entry> &entries);
    /// Lights the source with this mode.
    void setMode(uint mode);

    const QVector<Entry> &entries() const { return m_entries; }
    AppTile *tile(int index) const { return m_tiles.at(index); }

    /// An arrow moves the frame from tile to tile, Enter opens the tile that has it.
    void navigate(int key);

Q_SIGNALS:
    void chosen(const Launcher::Entry &entry);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int columns() const;
    void arrange();

    QVector<Entry> m_entries;
    QVector<AppTile *> m_tiles;
    QScrollArea *m_area;
    QGridLayout *m_grid;
    uint m_mode = 0;
};

#endif // LAUNCHER_H
