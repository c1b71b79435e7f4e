#include "ko/TrContext.h"

#include "ko/QtCompat.h"

#include <cstring>

namespace ko {

QString translatedFor(const QMetaObject& type, const char* text, const char* comment, int n)
{
    const char* context = type.className();
    if (std::strncmp(context, "ko::", 4) == 0)
        context += 4;
    return translated(context, text, comment, n);
}

} // namespace ko
