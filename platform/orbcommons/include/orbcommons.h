#ifndef ORBCOMMONS_H
#define ORBCOMMONS_H

#include "orbglobal.h"

#include <QString>

/// Registers application \a appId with its launcher \a title (already translated). A second call for the same
/// id replaces the title. An empty title is kept as it is.
ORB_EXPORT void AppendAppTitle(unsigned int appId, const QString &title);

/// Replaces the title of \a appId after a language change; registers the id when it is new.
ORB_EXPORT void TranslateAppTitle(unsigned int appId, const QString &title);

/// The registered title of \a appId, else the framework's own title of that application in the current
/// language, else an empty text.
ORB_EXPORT QString AppTitleFromAppId(unsigned int appId);

/// Milliseconds of a monotonic clock; only differences mean something. Tests can hold and move it (OrbHost).
ORB_EXPORT quint64 GetTickCountMs();

#endif // ORBCOMMONS_H
