#ifndef SCREENREADER_H
#define SCREENREADER_H

#include <QAbstractItemView>
#include <QMap>
#include <QMetaProperty>
#include <QPointer>
#include <QVector>

/// Reads what the plug-in's windows show, and tells what of it has become other. Made to be asked after every package:
/// it looks widgets up once, and reads only those lists again whose rows have changed.
///
/// What is shown has names: "Window.widget" for a widget that has one, "Window: label" for a row of a list. A window
/// is called by its object name, else by its title, else by its class.
class ScreenReader : public QObject
{
    Q_OBJECT

public:
    using Texts =
        QMap<QString, QString>; ///< by name: text, number or switch; of a row what stands behind its label

    explicit ScreenReader(QObject *parent = nullptr);

    /// What is shown now is what changes() compares with from here on.
    void remember();
    /// All that is remembered.
    const Texts &remembered() const { return m_remembered; }
    /// What is shown otherwise than it is remembered, with its present text.
    Texts changes();

    /// The name of a window of the plug-in.
    static QString nameOf(const QWidget *window);

private:
    struct State
    {
        QString text;
        QString value;
        bool isHidden = false;
        bool isEnabled = true;

        QString words() const;
        bool operator==(const State &other) const;
    };
    struct Part
    {
        QPointer<QWidget> widget;
        QString name;
        QMetaProperty text; ///< invalid for a widget without one, as value is
        QMetaProperty value;
        State remembered;

        State state() const;
    };
    struct List
    {
        QPointer<QAbstractItemView> view;
        QString window;
        Texts remembered;
        Texts shown;
        bool isStale; ///< shown is to be read again
    };

    void lookUp();
    static Part partOf(QWidget *widget, const QString &name);
    static Texts rowsOf(const List &list);

    QList<QWidget *> m_windows;
    QVector<Part> m_parts;
    QVector<List> m_lists;
    Texts m_remembered;
};

#endif // SCREENREADER_H
