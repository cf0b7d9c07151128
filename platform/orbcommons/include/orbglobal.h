#ifndef ORBGLOBAL_H
#define ORBGLOBAL_H

#include <QtGlobal>

// Marks what libOrbCommons offers to plug-ins; everything else in the library stays hidden.
#if defined(ORBCOMMONS_LIBRARY)
#define ORB_EXPORT Q_DECL_EXPORT
#else
#define ORB_EXPORT Q_DECL_IMPORT
#endif

#endif // ORBGLOBAL_H
