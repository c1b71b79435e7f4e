#ifndef KO_PLACECOMMANDS_H
#define KO_PLACECOMMANDS_H

#include <QStringList>

#include <optional>

namespace ko {

class MainWindow;

/// Where devices are, and their tags.
namespace PlaceCommands {

/// What is to be set; the others stay as they are.
struct Values
{
    std::optional<QString> location;
    std::optional<QString> tags;
};

/// Asks for those of the selected devices.
void edit(MainWindow& window);

/// Gives them to the devices among \a ids, as one change set, and says so.
void assign(MainWindow& window, const QStringList& ids, const Values& values);

} // namespace PlaceCommands

} // namespace ko

#endif
