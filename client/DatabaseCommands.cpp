#include "DatabaseCommands.h"

#include "MainWindow.h"
#include "PlainMessageBox.h"
#include "WhileShowing.h"
#include "database/HostNodeDB.h"
#include "store/StoreBackup.h"
#include "utils/FileDialogs.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QSettings>

#include <algorithm>

namespace ko {

namespace DatabaseCommands {

namespace {

const char recentKey[] = "recentDatabases";
const int mostRecent = 8;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseCommands)
};

QString filter()
{
    return QCoreApplication::translate("DatabaseRecovery", "Node databases (*.kodb);;All files (*)");
}

QString title()
{
    return QCoreApplication::translate("DatabaseRecovery", "Node Database");
}

QString shown(const QString& file)
{
    return QDir::toNativeSeparators(file);
}

void warn(MainWindow& window, const QString& text)
{
    PlainMessageBox::ask(QMessageBox::Warning, &window, title(), text);
}

bool agreesToRestore(MainWindow& window, const QString& backup)
{
    PlainMessageBox box(QMessageBox::Warning, Texts::tr("Restore a Backup"),
                        Texts::tr("Everything in this database is replaced by what \"%1\" holds, for all who "
                                  "use it. What is there now is kept as a backup first.")
                            .arg(shown(backup)),
                        QMessageBox::Cancel, &window);
    box.setObjectName(QStringLiteral("restoreBox"));
    const QPushButton* go = box.addButton(Texts::tr("&Restore"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(go);
}

} // namespace

void create(MainWindow& window)
{
    QString file = FileDialogs::fileOrNewName(&window, Texts::tr("New Node Database"), filter());
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += QLatin1String(".kodb");
    if (QFileInfo::exists(file))
        warn(window,
             Texts::tr("\"%1\" is there already. Open it instead, or choose another name.").arg(shown(file)));
    else
        window.openInstead(file);
}

void open(MainWindow& window)
{
    const QString file = FileDialogs::openFile(
        &window, QCoreApplication::translate("DatabaseRecovery", "Open Node Database"), filter());
    if (!file.isEmpty())
        window.openInstead(file);
}

void backUp(MainWindow& window)
{
    const QFileInfo database(window.database().fileName());
    const QString file = FileDialogs::saveFile(
        &window, Texts::tr("Back Up"),
        QStringLiteral("%1-%2.kodb")
            .arg(database.completeBaseName(), QDate::currentDate().toString(Qt::ISODate)),
        filter());
    if (file.isEmpty() || !window.database().flush(StoreWait::InEventLoop))
        return; // whoever is told that storing failed knows
    StoreError error;
    bool isWritten = false;
    doWhileShowing(Texts::tr("Back Up"), Texts::tr("Copying the database..."), &window,
                   [&] { isWritten = StoreBackup::write(database.filePath(), file, &error); });
    if (isWritten)
        window.say(Texts::tr("The database was copied to \"%1\".").arg(shown(file)));
    else
        warn(window, error.message);
}

void restore(MainWindow& window)
{
    if (window.isShared()) {
        warn(window, Texts::tr("A shared database is restored on its server. Ask its administrator."));
        return;
    }
    const QString backup = FileDialogs::openFile(&window, Texts::tr("Restore a Backup"), filter());
    if (backup.isEmpty() || !agreesToRestore(window, backup) ||
        !window.database().flush(StoreWait::InEventLoop))
        return;
    StoreError error;
    bool isRestored = false;
    doWhileShowing(Texts::tr("Restore a Backup"), Texts::tr("Restoring the backup..."), &window,
                   [&] { isRestored = StoreBackup::restore(backup, window.database().fileName(), &error); });
    window.database().syncForeignChanges();
    window.applyChanges();
    if (isRestored)
        window.say(Texts::tr("The database was restored from \"%1\".").arg(shown(backup)));
    else
        warn(window, error.message);
}

QStringList recent()
{
    QStringList files = QSettings().value(QLatin1String(recentKey)).toStringList();
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const QString& file) { return !QFileInfo::exists(file); }),
                files.end());
    return files;
}

void addRecent(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = recent();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue(QLatin1String(recentKey), QStringList(files.mid(0, mostRecent)));
}

} // namespace DatabaseCommands

} // namespace ko
