#ifndef DESKWINDOW_H
#define DESKWINDOW_H

#include "unitscreen.h"

#include <QWidget>

class DecoderBox;
class HeadUnit;
class KeyStrip;
class SidePanel;
class UnitShell;

/// The head unit on the desk: its screen, its keys below, and beside it the panel of the virtual box. To be
/// built before the plug-in is loaded, and after the trace listener is set.
class DeskWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a box: null when the unit talks to a real box. Neither is owned; both must outlive the window.
    DeskWindow(HeadUnit *unit, DecoderBox *box, const QSize &screenSize = UnitScreen::standardSize(),
               QWidget *parent = nullptr);
    ~DeskWindow() override;

    UnitScreen *screen() const { return m_screen; }
    UnitShell *shell() const { return m_shell; }
    KeyStrip *keyStrip() const { return m_keyStrip; }
    SidePanel *sidePanel() const { return m_sidePanel; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void chooseLanguage(const QString &language);
    void retranslate();

    HeadUnit *m_unit;
    UnitScreen *m_screen;
    UnitShell *m_shell;
    KeyStrip *m_keyStrip;
    SidePanel *m_sidePanel;
};

#endif // DESKWINDOW_H
