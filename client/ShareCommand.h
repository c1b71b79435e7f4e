#ifndef KO_SHARECOMMAND_H
#define KO_SHARECOMMAND_H

#include "SiteOpening.h"

namespace ko {

/// koclient --share: brings a file with its history to an empty site, and compares both. What was brought
/// before the command was ended stays there; the next call goes on.
class ShareCommand
{
    Q_DECLARE_TR_FUNCTIONS(ShareCommand)

public:
    ShareCommand(const QString& file, const QString& address);

    /// Returns the exit code of the program.
    int run();

private:
    bool mayBeShared();
    bool fits(const SiteGreeting& greeting);
    bool hasKey(const SiteGreeting& greeting);
    bool verify();

    const QString m_file;
    const QString m_address;
    SiteOpening m_opening;
};

} // namespace ko

#endif
