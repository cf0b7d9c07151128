#ifndef SIDEPANEL_H
#define SIDEPANEL_H

#include <QVector>
#include <QWidget>

class BoxPage;
class DecoderBox;
class KeyWatch;
class LineInspector;
class LinePage;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class UnitPage;

/// Beside the unit: the virtual box and its car, and what is done to the unit itself. One page at a time; each
/// scrolls, also by dragging, and what has many controls is searched by name.
class SidePanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int PanelWidth = 380;

    /// \a box may be null, when the unit talks to a real one; the panel then has the pages of keys, line and unit only,
    /// and on that of the keys the tester alone. None is owned; all must outlive the panel.
    SidePanel(DecoderBox *box, LineInspector *inspector, KeyWatch *keys, QWidget *parent = nullptr);

    UnitPage *unitPage() const { return m_unitPage; }
    LinePage *linePage() const { return m_linePage; }
    /// Null without a box.
    BoxPage *boxPage() const { return m_boxPage; }

    void showPage(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void search();
    void setTexts();
    QScrollArea *addPage(const char *title, QWidget *page);

    struct Tab
    {
        QPushButton *button;
        const char *title; // untranslated
    };

    DecoderBox *m_box;
    KeyWatch *m_keys;
    QVector<Tab> m_tabs;
    QLineEdit *m_search;
    QStackedWidget *m_pages;
    QScrollArea *m_carArea = nullptr;
    QScrollArea *m_keysArea = nullptr;
    LinePage *m_linePage;
    UnitPage *m_unitPage;
    BoxPage *m_boxPage = nullptr;
};

#endif // SIDEPANEL_H
