#ifndef DESKWINDOW_H
#define DESKWINDOW_H

#include "unitscreen.h"

#include <QWidget>

class DecoderBox;
class HeadUnit;
class KeyStrip;
class LineInspector;
class LineReplayer;
class LineReporter;
class LineStrip;
struct LineStatus;
class QToolButton;
class SidePanel;
class UnitShell;
class UnitView;

/// The head unit on the desk: its screen, its keys below, and beside it the panel of the virtual box, which
/// folds away (F9). The screen takes the room that the window has. Ctrl+Q closes the window. To be built before
/// the plug-in is loaded, and after the trace listener is set.
class DeskWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a box: null when the unit talks to a real box. Neither is owned; both must outlive the window.
    DeskWindow(HeadUnit *unit, DecoderBox *box, const QSize &screenSize = UnitScreen::standardSize(),
               QWidget *parent = nullptr);
    ~DeskWindow() override;

    UnitScreen *screen() const { return m_screen; }
    UnitView *view() const { return m_view; }
    UnitShell *shell() const { return m_shell; }
    SidePanel *sidePanel() const { return m_sidePanel; }

    /// The unit's language, \a language being one of UnitPage::languages(); the plug-in is told.
    void chooseLanguage(const QString &language);
    /// What the line is like, as the strip below the unit says it.
    LineStrip *lineStrip() const { return m_lineStrip; }

    /// Shows \a replayer, which is not owned and must outlive the window, on the page of the line; the space bar pauses
    /// it, a full stop steps.
    void showReplay(LineReplayer *replayer);

    /// Saves the last minute of the line in the current folder, and says where.
    void saveLine();

    void foldPanel(bool isFolded);
    bool isPanelFolded() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void addShortcuts();
    void watchLine(DecoderBox *box);
    void showLine(const LineStatus &status);
    void sayHello();
    void showTitle();
    void retranslate();

    HeadUnit *m_unit;
    UnitScreen *m_screen;
    UnitView *m_view;
    UnitShell *m_shell;
    KeyStrip *m_keyStrip;
    QToolButton *m_fold;
    SidePanel *m_sidePanel;
    QString m_car;
    LineStrip *m_lineStrip;
    LineInspector *m_inspector;
    LineReporter *m_lineReporter;
};

#endif // DESKWINDOW_H
