#ifndef KO_SCANNING_H
#define KO_SCANNING_H

#include <string>

namespace ko {

/// The scanners that a program has, as the database calls them for NodeDB::startScanners(). Owned by the
/// database, and gone before anything else of it.
class Scanning
{
public:
    virtual ~Scanning() = default;

    /// False if there is none of this name.
    virtual bool start(const std::string& name, unsigned interfaces, int limit) = 0;
    virtual void stop(const std::string& name) = 0;
};

} // namespace ko

#endif
