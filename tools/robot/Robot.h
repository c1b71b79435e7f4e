#ifndef KO_ROBOT_H
#define KO_ROBOT_H

#include <QDir>
#include <QString>

#include <functional>

class QDialog;

namespace ko {

class HostNodeDB;
class MainWindow;

/// Walks through the client's main work with the clicks and keys of a user, and leaves a picture of every
/// window. It needs no display and shows a newcomer, and the build, that the program works.
class Robot
{
public:
    Robot(HostNodeDB& db, MainWindow& window, const QString& folder);

    /// False, with the reason said, when something was not as it must be.
    bool run(const QString& survey);

    /// The walk of the demonstration: both scans, until this many cameras are found, which are then taken
    /// over.
    bool runScans(int cameras);

    /// In a later process: whether what the walk did was stored and logged.
    static bool check(HostNodeDB& db);

private:
    void begin();
    void importSurvey(const QString& survey);
    void search();
    void addCamera();
    void editCamera();
    void lookAround();

    void picture(QWidget* widget, const char* name);
    void withDialog(const char* action, const std::function<void(QDialog*)>& work);
    void expect(bool condition, const QString& text);

    HostNodeDB& m_db;
    MainWindow& m_window;
    const QDir m_folder;
    int m_pictures = 0;
    bool m_good = true;
};

} // namespace ko

#endif
