#ifndef KO_SOAPWALK_H
#define KO_SOAPWALK_H

#include "HostExport.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QXmlStreamAttributes;

namespace ko {

/// Walks through the body of a SOAP message, 1.1 or 1.2, that a stranger sent, at a cost that is bounded by
/// its length. UTF-8 only. There is no document type, no entity but XML's own five, and nothing beyond
/// Limits.
///
/// A path is the local names from within the body on, as "ProbeMatches/ProbeMatch/XAddrs".
class KO_HOST_EXPORT SoapWalk
{
public:
    enum Limits {
        MostElements = 50000,
        MostDepth = 40,
        MostNamespaces = 200,
        LongestTag = 16384, ///< bytes from one '<' to the next: attributes and text
        LongestText = 8192  ///< characters
    };

    typedef std::function<void(const QString& path, const QXmlStreamAttributes& attributes)> Begin;
    typedef std::function<void(const QString& path, const QString& text)> End;

    /// Calls \a begin and \a end for each element; the text is trimmed, and empty for an element with
    /// children. Empty, or why it stopped: what was called until then is worth nothing.
    static QString read(const QByteArray& message, const Begin& begin, const End& end);

    /// For those who look at texts alone.
    static QString read(const QByteArray& message, const End& end);

private:
    class Walk;
};

} // namespace ko

#endif
