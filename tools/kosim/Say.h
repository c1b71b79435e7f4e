#ifndef KOSIM_SAY_H
#define KOSIM_SAY_H

#include <QString>

#include <cstdio>

namespace kosim {

/// One line, at once, so that scripts can wait for it. Others' texts could steer the terminal: what cannot be
/// shown is a question mark.
inline void say(const QString& text, FILE* stream = stdout)
{
    QString shown = text;
    for (QChar& c : shown) {
        if (!c.isPrint() && !c.isSurrogate())
            c = QLatin1Char('?');
    }
    std::fprintf(stream, "%s\n", qPrintable(shown));
    std::fflush(stream);
}

} // namespace kosim

#endif
