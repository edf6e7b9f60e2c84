// VYN_EXPORT marks what libvyndialogs offers to a host program.
#pragma once

#include <QtCore/qglobal.h>

#ifdef VYN_BUILDING_LIBRARY
#define VYN_EXPORT Q_DECL_EXPORT
#else
#define VYN_EXPORT Q_DECL_IMPORT
#endif
