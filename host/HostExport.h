#ifndef KO_HOST_EXPORT_H
#define KO_HOST_EXPORT_H

#include <QtGlobal>

#ifdef KO_BUILD_HOST
#define KO_HOST_EXPORT Q_DECL_EXPORT
#else
#define KO_HOST_EXPORT Q_DECL_IMPORT
#endif

#endif
