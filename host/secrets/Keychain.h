#ifndef KO_KEYCHAIN_H
#define KO_KEYCHAIN_H

#include <QString>

namespace ko {

class KeychainWait;

/// One entry in the desktop's keychain, asked without waiting for ever.
class Keychain
{
public:
    enum Answer {
        Found,
        NoEntry,  ///< it was looked for, in what is locked as well
        NotThere, ///< there is no keychain
        Closed    ///< there is one, but it stayed locked, refused or did not answer: it may have the entry
    };

    /// \a patience in milliseconds. \a wait may be null, and outlives this.
    Keychain(const QString& service, int patience, KeychainWait* wait);

    /// Both run an event loop.
    Answer read(QString* text) const;
    void write(const QString& text) const; ///< read() tells whether it is there

private:
    const QString m_service;
    const int m_patience;
    KeychainWait* const m_wait;
};

} // namespace ko

#endif
