#ifndef KO_GLOBALNETWORKPROXY_H
#define KO_GLOBALNETWORKPROXY_H

#include "ko/NetworkProxy.h"

#include <QObject>
#include <QStringList>

namespace ko {

/// The application-wide proxy settings with the hosts that are reached without the proxy.
///
/// Exceptions are patterns, matched case-insensitively against a device's address as it is typed
/// (nothing is resolved):
/// - without an asterisk a pattern matches the whole address and nothing else;
/// - "*" stands for any run of characters, also an empty one; every other character, the dot included,
///   stands for itself;
/// - a pattern that begins with "*." also matches the bare domain behind it: "*.example.org" matches
///   "cam.example.org" and "example.org".
/// Patterns are trimmed and empty ones dropped when they are set; their order and case are kept.
class KO_PLATFORM_EXPORT GlobalNetworkProxy : public QObject, public NetworkProxy
{
    Q_OBJECT

public:
    explicit GlobalNetworkProxy(QObject* parent = nullptr);

    QStringList exceptions() const { return m_exceptions; }

    /// The patterns joined by \a separator.
    QString exceptionsAssembled(QChar separator) const;

    /// Replaces the patterns by those of \a list, split at \a separator.
    virtual void setExceptions(const QString& list, QChar separator);

    /// Appends a pattern unless it is listed already (exact comparison) or empty.
    virtual void addException(const QString& pattern);

    /// Removes the pattern that equals \a pattern exactly, case included.
    virtual void removeException(const QString& pattern);

    /// Whether some pattern matches \a address; an empty address is matched by none.
    bool isAffectedFromExceptions(const QString& address) const;

    /// Copies all settings of \a other, and says so once if any differs.
    void assign(const NetworkProxy& other, const QStringList& exceptions);

signals:
    /// Some setting changed. One call of a setter gives at most one signal.
    void globalProxyDataChanged();

protected:
    void changed() override;

private:
    void replaceExceptions(const QStringList& exceptions);

    QStringList m_exceptions;
};

} // namespace ko

#endif
