#ifndef ORBHOST_P_H
#define ORBHOST_P_H

#include "orbhost.h"

#include <QHash>
#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class OrbKeyFilter;
class QTranslator;
class TouchInjector;
class WindowStack;

/// State of the framework that its classes share. One object, inside OrbHost.
class OrbHostPrivate
{
public:
    struct GpioLine
    {
        GpioLine() : direction("in"), value(0) {}
        QString direction;
        int value;
    };

    /// Never null; builds OrbHost on first use.
    static OrbHostPrivate *get() { return OrbHost::instance()->d; }

    /// Deletes OrbHost; the next use builds a fresh one.
    static void destroy();

    explicit OrbHostPrivate(OrbHost *host);
    ~OrbHostPrivate();

    void setAppTitle(unsigned int appId, const QString &title);
    void setAppIcons(unsigned int appId, const QString &normalAndHighlighted);

    /// Replaces the state of \a line and announces it when it differs.
    void setGpioLine(int line, const GpioLine &state);

    /// Loads what the translation folders hold for \a language; the caller owns the translators.
    QList<QTranslator *> loadTranslators(const QString &language) const;

    OrbHost *q;
    QHash<unsigned int, QVariant> tags;
    QHash<QString, QVariant> productValues;
    QHash<QString, QStringList> factorySettings;
    QString settingsDir;
    QHash<int, GpioLine> gpioLines;
    QHash<int, QStringList> diskPartitions;
    int curWindowAppId; ///< -1: not overridden
    QPointer<QWidget> screen;
    QPointer<QWidget> windowArea;
    QList<OrbKeyFilter *> keyFilters;
    QList<unsigned int> titleOrder;
    QHash<unsigned int, QString> titles;
    QHash<unsigned int, QStringList> icons;
    QString language;
    QStringList translationDirs;
    QList<QTranslator *> translators;
    bool tickHeld;
    quint64 heldTick;
    WindowStack *windowStack;
    TouchInjector *touch;
};

#endif // ORBHOST_P_H
