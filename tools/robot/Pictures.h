#ifndef KO_PICTURES_H
#define KO_PICTURES_H

#include <QDir>
#include <QString>

#include <functional>

class QDialog;

namespace ko {

class HostNodeDB;
class MainWindow;

/// Leaves a picture of every window of the client, for the manual and the README, over an example of a site.
/// The windows are opened as a user opens them.
class Pictures
{
public:
    /// In a database without nodes. \a end comes after the names of the pictures, which are those of the
    /// manual.
    Pictures(HostNodeDB& db, MainWindow& window, const QString& folder, const QString& end);

    /// False, with the reason said, if a picture could not be made.
    bool make(const QString& survey);

    /// From now on the program is dark, whatever the desktop is.
    static void beDark();

private:
    void fill(const QString& survey);
    void check();
    void makeOfActions();
    void makeOfEditors();
    void makeOfScan();
    void makeOfHistory();
    void makeOfLists(const QString& survey);
    void makeOfRecordings();
    void makeOfViewers();

    void shoot(QWidget* widget, const QString& name);
    void open(const char* action, const std::function<void(QDialog*)>& look);
    void openAndShoot(const char* action, const QString& name);
    void select(const QStringList& names);
    QString idOf(const QString& name) const;

    HostNodeDB& m_db;
    MainWindow& m_window;
    const QDir m_folder;
    const QString m_end;
    bool m_good = true;
};

} // namespace ko

#endif
