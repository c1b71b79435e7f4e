#ifndef KO_SCANNERS_H
#define KO_SCANNERS_H

#include "database/Scanning.h"
#include "discovery/DeviceIntake.h"

#include <memory>
#include <vector>

namespace ko {

/// The scanners of a database, and what makes nodes of what they find.
class KO_HOST_EXPORT Scanners : public Scanning
{
public:
    /// Those of \a db, which owns them; made when they are asked for first.
    static Scanners& of(HostNodeDB& db);
    ~Scanners() override;

    /// Installs a scanner, to be called by its name. The host program decides which there are.
    void add(std::unique_ptr<Scanner> scanner);
    QList<Scanner*> all() const;

    DeviceIntake& intake() { return m_intake; }

    bool start(const std::string& name, unsigned interfaces, int limit) override;
    void stop(const std::string& name) override;

private:
    explicit Scanners(HostNodeDB& db);

    DeviceIntake m_intake;
    std::vector<std::unique_ptr<Scanner>> m_scanners; ///< go first
};

} // namespace ko

#endif
