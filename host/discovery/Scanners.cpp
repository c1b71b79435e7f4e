#include "discovery/Scanners.h"

#include "database/HostNodeDB.h"
#include "discovery/Scanner.h"

namespace ko {

Scanners& Scanners::of(HostNodeDB& db)
{
    if (auto* scanners = dynamic_cast<Scanners*>(db.scanning()))
        return *scanners;
    auto* scanners = new Scanners(db);
    db.setScanning(std::unique_ptr<Scanning>(scanners));
    return *scanners;
}

Scanners::Scanners(HostNodeDB& db)
    : m_intake(db)
{
}

Scanners::~Scanners() = default;

void Scanners::add(std::unique_ptr<Scanner> scanner)
{
    m_intake.attach(*scanner);
    m_scanners.push_back(std::move(scanner));
}

QList<Scanner*> Scanners::all() const
{
    QList<Scanner*> all;
    for (const auto& scanner : m_scanners)
        all.append(scanner.get());
    return all;
}

bool Scanners::start(const std::string& name, unsigned interfaces, int limit)
{
    bool found = false;
    bool begun = false;
    for (const auto& scanner : m_scanners) {
        if (scanner->name().toStdString() != name)
            continue;
        found = true;
        if (scanner->state().phase == ScannerState::Running)
            continue;
        if (!begun)
            m_intake.beginScan();
        begun = true;
        scanner->start(interfaces, limit);
    }
    return found;
}

void Scanners::stop(const std::string& name)
{
    for (const auto& scanner : m_scanners) {
        if (scanner->name().toStdString() == name)
            scanner->stop();
    }
}

} // namespace ko
