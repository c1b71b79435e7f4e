#ifndef KO_FUZZ_INPUT_H
#define KO_FUZZ_INPUT_H

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// UTF-16 as it comes, broken pairs and zeros included, or UTF-8: the first byte decides.
inline QString text(const uint8_t* data, size_t size)
{
    if (size == 0)
        return QString();
    const char* bytes = reinterpret_cast<const char*>(data) + 1;
    if (data[0] & 1)
        return QString::fromUtf8(bytes, int(size) - 1);
    QString units(int(size - 1) / 2, QChar());
    for (int i = 0; i < units.size(); ++i)
        units[i] = QChar(ushort(uchar(bytes[2 * i]) | uchar(bytes[2 * i + 1]) << 8));
    return units;
}

/// Ends the program when what must hold does not.
inline void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace fuzz

#endif
