#ifndef KO_LOGCOMMANDS_H
#define KO_LOGCOMMANDS_H

#include <QString>

namespace ko {

/// What the command line does with the logs of a database. Each returns an Application::ExitCode.
namespace LogCommands {

/// Looks whether anybody has altered them, and names what.
int verify(const QString& database);

/// Takes out details of the history that are older than this many days.
int thin(const QString& database, int days);

} // namespace LogCommands

} // namespace ko

#endif
