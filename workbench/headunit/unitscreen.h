#ifndef UNITSCREEN_H
#define UNITSCREEN_H

#include <QWidget>

/// The unit's screen: a strip for the status bar at the top, and below it the area that windows and dialogs
/// are put on. It is OrbHost's screen as long as it exists.
class UnitScreen : public QWidget
{
    Q_OBJECT

public:
    static constexpr int StatusHeight = 48;
    static constexpr QSize standardSize() { return QSize(1024, 600); }

    /// \a size in pixels, fixed from then on.
    explicit UnitScreen(const QSize &size = standardSize(), QWidget *parent = nullptr);
    ~UnitScreen() override;

    /// Empty widgets for the unit's own pages. What belongs under all windows goes into the window area
    /// before the plug-in is loaded.
    QWidget *statusArea() const { return m_statusArea; }
    QWidget *windowArea() const { return m_windowArea; }

    /// Paints what the screen shows into the PNG file \a path. False, with the reason in \a error, when it
    /// cannot be written.
    bool saveScreenshot(const QString &path, QString *error);

private:
    QWidget *m_statusArea;
    QWidget *m_windowArea;
};

#endif // UNITSCREEN_H
