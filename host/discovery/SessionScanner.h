#ifndef KO_SESSIONSCANNER_H
#define KO_SESSIONSCANNER_H

#include "discovery/ScanSession.h"

#include <memory>

namespace ko {

/// What the scanners have in common: one session at a time, whose reports become signals and a state.
class KO_HOST_EXPORT SessionScanner : public Scanner
{
    Q_OBJECT

public:
    explicit SessionScanner(QObject* parent = nullptr);
    ~SessionScanner() override;

    void start(unsigned interfaces, int limit) override;
    void stop() override;
    ScannerState state() const override { return m_state; }

protected:
    /// A session that works already; it hands its reports to \a take.
    virtual std::shared_ptr<ScanSession> begin(const ScanSession::Take& take, unsigned interfaces,
                                               int limit) = 0;

    /// Gives a state its texts, and says in the log what is to be said there.
    virtual void explain(ScannerState& state, int error);

private:
    void take(const ScanReport& report);
    void setState(const ScannerState& state);

    std::shared_ptr<ScanSession> m_session;
    ScannerState m_state;
};

} // namespace ko

#endif
