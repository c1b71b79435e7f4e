#ifndef KO_NODEUI_EXPORT_H
#define KO_NODEUI_EXPORT_H

#include <QtGlobal>

#ifdef KO_BUILD_NODEUI
#define KO_NODEUI_EXPORT Q_DECL_EXPORT
#else
#define KO_NODEUI_EXPORT Q_DECL_IMPORT
#endif

#endif
