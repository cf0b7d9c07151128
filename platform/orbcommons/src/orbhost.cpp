#include "orbhost.h"

#include "orbhost_p.h"
#include "orbkeyfilter.h"
#include "touchinjector.h"
#include "windowstack.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

namespace {

OrbHost *theHost = nullptr;

/// Sets \a key, or removes it when \a value is the empty one of its type.
template <typename Key, typename Value>
void setOrRemove(QHash<Key, Value> *table, const Key &key, const Value &value, bool empty)
{
    if (empty) {
        table->remove(key);
    } else {
        table->insert(key, value);
    }
}

/// A language name becomes part of a file pattern: letters, digits and underscores only.
bool isLanguageName(const QString &language)
{
    for (int i = 0; i < language.size(); ++i) {
        const QChar c = language.at(i);
        if (!c.isLetterOrNumber() && c != QLatin1Char('_')) {
            return false;
        }
    }
    return !language.isEmpty();
}

} // namespace

OrbHostPrivate::OrbHostPrivate(OrbHost *host)
    : q(host)
    , settingsDir("settings")
    , curWindowAppId(-1)
    , language("en")
    , tickHeld(false)
    , heldTick(0)
    , windowStack(new WindowStack(host))
    , touch(new TouchInjector(host))
{}

OrbHostPrivate::~OrbHostPrivate()
{
    qDeleteAll(translators);
}

void OrbHostPrivate::destroy()
{
    if (theHost) {
        theHost->d->windowStack->leaveArea();
    }
    OrbHost *host = theHost;
    theHost = nullptr;
    delete host;
}

void OrbHostPrivate::setAppTitle(unsigned int appId, const QString &title)
{
    if (titles.contains(appId) && titles.value(appId) == title) {
        return;
    }
    if (!titles.contains(appId)) {
        titleOrder.append(appId);
    }
    titles.insert(appId, title);
    Q_EMIT q->appTitleChanged(appId, title);
}

void OrbHostPrivate::setAppIcons(unsigned int appId, const QString &normalAndHighlighted)
{
    QStringList paths;
    if (!normalAndHighlighted.isEmpty()) {
        const QString normal = normalAndHighlighted.section(',', 0, 0).trimmed();
        const QString highlighted = normalAndHighlighted.section(',', 1, 1).trimmed();
        paths << normal << (highlighted.isEmpty() ? normal : highlighted);
    }
    if (icons.value(appId) == paths) {
        return;
    }
    setOrRemove(&icons, appId, paths, paths.isEmpty());
    Q_EMIT q->appIconsChanged(appId);
}

void OrbHostPrivate::setGpioLine(int line, const GpioLine &state)
{
    const GpioLine before = gpioLines.value(line);
    gpioLines.insert(line, state);
    if (before.direction != state.direction || before.value != state.value) {
        Q_EMIT q->gpioChanged(line, state.direction, state.value);
    }
}

QList<QTranslator *> OrbHostPrivate::loadTranslators(const QString &wanted) const
{
    QList<QTranslator *> loaded;
    if (!isLanguageName(wanted)) {
        return loaded;
    }
    for (int i = 0; i < translationDirs.size(); ++i) {
        const QDir dir(translationDirs.at(i));
        const QStringList files = dir.entryList(QStringList("*_" + wanted + ".qm"), QDir::Files, QDir::Name);
        for (int k = 0; k < files.size(); ++k) {
            QTranslator *translator = new QTranslator;
            if (translator->load(dir.filePath(files.at(k)))) {
                loaded.append(translator);
            } else {
                delete translator;
            }
        }
    }
    return loaded;
}

OrbHost::OrbHost() : d(new OrbHostPrivate(this))
{
    connect(d->windowStack, SIGNAL(changed()), this, SIGNAL(windowsChanged()));
}

OrbHost::~OrbHost()
{
    delete d;
}

OrbHost *OrbHost::instance()
{
    if (!theHost) {
        theHost = new OrbHost;
    }
    return theHost;
}

void OrbHost::setTag(unsigned int tag, const QVariant &value)
{
    setOrRemove(&d->tags, tag, value, !value.isValid());
}

void OrbHost::setProductValue(const QString &key, const QVariant &value)
{
    setOrRemove(&d->productValues, key, value, !value.isValid());
}

void OrbHost::setFactorySetting(const QString &key, const QStringList &values)
{
    setOrRemove(&d->factorySettings, key, values, values.isEmpty());
}

void OrbHost::setSettingsDir(const QString &path)
{
    d->settingsDir = path.isEmpty() ? QString("settings") : path;
}

QString OrbHost::settingsDir() const
{
    return d->settingsDir;
}

void OrbHost::setDiskPartitions(int disk, const QStringList &paths)
{
    setOrRemove(&d->diskPartitions, disk, paths, paths.isEmpty());
}

void OrbHost::setCurWindowAppId(int appId)
{
    d->curWindowAppId = qMax(appId, -1);
}

void OrbHost::setScreen(QWidget *screen, QWidget *windowArea)
{
    d->screen = screen;
    d->windowArea = windowArea;
    d->windowStack->areaChanged();
}

QWidget *OrbHost::screen() const
{
    return d->screen;
}

QWidget *OrbHost::windowArea() const
{
    return d->windowArea;
}

QList<QWidget *> OrbHost::windows() const
{
    return d->windowStack->all();
}

QWidget *OrbHost::frontWindow(bool ignoreOverlays) const
{
    return d->windowStack->front(ignoreOverlays);
}

QWidget *OrbHost::frontMainWindow() const
{
    return d->windowStack->frontMainWindow();
}

bool OrbHost::filterKey(unsigned int key, bool pressed, bool held)
{
    // A filter may add and remove filters while it is asked: ask those that were there, as long as they are.
    const QList<OrbKeyFilter *> asked = d->keyFilters;
    for (int i = 0; i < asked.size(); ++i) {
        if (d->keyFilters.contains(asked.at(i)) && asked.at(i)->filterKey(key, pressed, held)) {
            return true;
        }
    }
    return false;
}

QList<unsigned int> OrbHost::titledApps() const
{
    return d->titleOrder;
}

QStringList OrbHost::appIcons(unsigned int appId) const
{
    return d->icons.value(appId);
}

bool OrbHost::setLanguage(const QString &language)
{
    const QList<QTranslator *> loaded = d->loadTranslators(language);
    if (loaded.isEmpty() && language != "en") {
        return false;
    }
    const QList<QTranslator *> before = d->translators;
    d->translators = loaded;
    d->language = language;
    for (int i = 0; i < before.size(); ++i) {
        QCoreApplication::removeTranslator(before.at(i));
    }
    for (int i = 0; i < loaded.size(); ++i) {
        QCoreApplication::installTranslator(loaded.at(i));
    }
    qDeleteAll(before);
    return true;
}

QString OrbHost::language() const
{
    return d->language;
}

void OrbHost::addTranslationDir(const QString &path)
{
    if (!d->translationDirs.contains(path)) {
        d->translationDirs.append(path);
    }
}

void OrbHost::holdTickCount(quint64 milliseconds)
{
    d->tickHeld = true;
    d->heldTick = milliseconds;
}

void OrbHost::releaseTickCount()
{
    d->tickHeld = false;
}
