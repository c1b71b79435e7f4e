#ifndef KO_TRCONTEXT_H
#define KO_TRCONTEXT_H

// The context in which the texts of a class are translated is its name, without the namespace: the same for
// what a form holds and for what the code says. Q_OBJECT alone would look up "ko::Name".

#include "PlatformExport.h"

#include <QObject>
#include <QString>

/// Beside Q_OBJECT, in every class with texts of its own: tells lupdate the context, as
/// Q_DECLARE_TR_FUNCTIONS does for classes without Q_OBJECT (packaging/update-translations passes it as an
/// alias of that).
#define KO_TR_CONTEXT(name)

namespace ko {

/// Looks up a text in the context of a class: its name after the last "ko::".
KO_PLATFORM_EXPORT QString translatedFor(const QMetaObject& type, const char* text, const char* comment,
                                         int n);

} // namespace ko

// What Q_OBJECT declares, with the context changed. A class outside the namespace keeps its own. Nothing
// beside Q_OBJECT can replace its tr(), so the toolkit's headers that come later see this, too: their classes
// return what they did before, since no name of theirs begins with "ko::".
#undef QT_TR_FUNCTIONS
#define QT_TR_FUNCTIONS                                                                                      \
    static inline QString tr(const char* text, const char* comment = nullptr, int n = -1)                    \
    {                                                                                                        \
        return ::ko::translatedFor(staticMetaObject, text, comment, n);                                      \
    }                                                                                                        \
    static inline QString trUtf8(const char* text, const char* comment = nullptr, int n = -1)                \
    {                                                                                                        \
        return ::ko::translatedFor(staticMetaObject, text, comment, n);                                      \
    }

#endif
