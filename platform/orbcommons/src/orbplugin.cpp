#include "orbplugin.h"

OrbPlugin::OrbPlugin() {}

OrbPlugin::~OrbPlugin() {}
