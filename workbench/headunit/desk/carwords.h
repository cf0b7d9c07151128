#ifndef CARWORDS_H
#define CARWORDS_H

#include <QString>

/// What the names that a box has for its car's properties, choices and keys are called on the desk. A name says
/// it itself; its translations are in carwords_LANGUAGE.ts.
namespace CarWords {

/// "Volume up 2" of "volume_up_2", in the user's language.
QString text(const QString &name);

/// "Settings · Units" of the group "settings.units".
QString groupText(const QString &group);

/// The text of what stands behind a property's last point: "To window" of "climate.to_window".
QString propertyText(const QString &name);

} // namespace CarWords

#endif // CARWORDS_H
