#include "ko/Terminal.h"

#include "ko/OutsideText.h"

namespace ko {

void Terminal::say(FILE* stream, const QString& line)
{
    std::fprintf(stream, "%s\n", OutsideText::visible(line).toLocal8Bit().constData());
    std::fflush(stream);
}

} // namespace ko
