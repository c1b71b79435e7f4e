#ifndef KO_KEYCHAIN_H
#define KO_KEYCHAIN_H

#include <QString>

namespace ko {

/// One entry in the desktop's keychain, asked without waiting for ever.
class Keychain
{
public:
    enum Answer { Found, NoEntry, NotThere };

    Keychain(const QString& service, int patience);

    Answer read(QString* text) const;
    bool write(const QString& text) const;

private:
    const QString m_service;
    const int m_patience;
};

} // namespace ko

#endif
