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

/// A message as it comes or, when the first byte is odd, in the envelope that it would take long to find, and
/// in \a element, if there is one.
inline QByteArray soap(const uint8_t* data, size_t size, const char* element)
{
    if (size == 0)
        return QByteArray();
    const QByteArray text(reinterpret_cast<const char*>(data) + 1, int(size) - 1);
    if (!(data[0] & 1))
        return text;
    const QByteArray name(element);
    const QByteArray inside = name.isEmpty() ? text : '<' + name + '>' + text + "</" + name + '>';
    return "<s:Envelope xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\"><s:Body>" + inside +
           "</s:Body></s:Envelope>";
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
