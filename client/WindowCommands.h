#ifndef KO_WINDOWCOMMANDS_H
#define KO_WINDOWCOMMANDS_H

namespace ko {

class MainWindow;

/// What belongs to the program and the database as a whole: each opens a window of its own.
namespace WindowCommands {

void connectToSite(MainWindow& window);
void editPreferences(MainWindow& window);
void editProxy(MainWindow& window);
void editEnvironments(MainWindow& window);
void findDevices(MainWindow& window);
void showAddressChanges(MainWindow& window);
void showAuditLog(MainWindow& window);
void showHistory(MainWindow& window);
void showHistoryOfSelected(MainWindow& window);
void showMoment(MainWindow& window);
void showDatabase(MainWindow& window);
void showManual(MainWindow& window);
void about(MainWindow& window);

} // namespace WindowCommands

} // namespace ko

#endif
