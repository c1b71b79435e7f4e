#ifndef KO_DATABASECOMMANDS_H
#define KO_DATABASECOMMANDS_H

#include <QString>
#include <QStringList>

namespace ko {

class MainWindow;

/// What can be done with the database as a file. Another one is opened by the program, which gives it a
/// window of its own when this one has closed; see MainWindow::openInstead().
namespace DatabaseCommands {

void create(MainWindow& window);
void open(MainWindow& window);
void backUp(MainWindow& window);

/// Gives this database the content of a backup.
void restore(MainWindow& window);

/// Those that were opened last and are still there, newest first.
QStringList recent();
void addRecent(const QString& file);

} // namespace DatabaseCommands

} // namespace ko

#endif
