#ifndef KO_LOGENTRYFACTORY_H
#define KO_LOGENTRYFACTORY_H

#include "ko/LogEntry.h"

#include <map>
#include <memory>

namespace ko {

/// Makes empty entries by type code, so that a host can rebuild what it stored.
class KO_PLATFORM_EXPORT LogEntryFactory
{
public:
    /// Returns a new entry that the caller owns.
    typedef LogEntry* (*Creator)();

    /// A code registered again takes the new creator.
    void registerCreator(FourChars code, Creator creator, const QString& title);

    /// A new entry with empty values, or null for an unknown code.
    std::unique_ptr<LogEntry> create(FourChars code) const;

    /// The untranslated title the code was registered with; empty for an unknown code.
    QString title(FourChars code) const;
    QList<FourChars> codes() const;

private:
    struct Registration
    {
        Creator creator;
        QString title;
    };
    std::map<FourChars, Registration> m_registrations;
};

/// The factory of the process. Entries register themselves while their library is loaded.
KO_PLATFORM_EXPORT LogEntryFactory& logEntryFactory();

} // namespace ko

#endif
