#ifndef KO_EXPORT_H
#define KO_EXPORT_H

#include <QtGlobal>

#ifdef KO_BUILD_PLATFORM
#define KO_PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define KO_PLATFORM_EXPORT Q_DECL_IMPORT
#endif

#endif
