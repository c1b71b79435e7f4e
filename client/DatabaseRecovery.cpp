#include "DatabaseRecovery.h"

#include "store/StoreBackup.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace ko {

namespace DatabaseRecovery {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("DatabaseRecovery", text);
}

QString timeOf(const QString& file, const QString& backup)
{
    const QVector<StoreBackup::Backup> backups = StoreBackup::backups(file);
    for (const StoreBackup::Backup& each : backups) {
        if (each.file == backup)
            return QLocale().toString(each.time.toLocalTime(), QLocale::ShortFormat);
    }
    return QString();
}

QString offerText(const QString& file, const QString& saved, const QString& backup)
{
    QStringList lines;
    lines.append(saved.isEmpty() ? translated("Nothing of it could be read.")
                                 : translated("What could be read of it was saved as \"%1\".")
                                       .arg(QDir::toNativeSeparators(saved)));
    lines.append(backup.isEmpty()
                     ? translated("There is no good backup.")
                     : translated("The newest good backup was made at %1.").arg(timeOf(file, backup)));
    if (!saved.isEmpty() || !backup.isEmpty())
        lines.append(translated("Whatever you choose, the damaged file is kept under another name."));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

bool offer(const QString& file, const StoreError& damage, QWidget* parent)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    StoreError error;
    const QString saved = StoreBackup::salvage(file, &error);
    const QString backup = StoreBackup::newestGood(file);
    QApplication::restoreOverrideCursor();

    QMessageBox box(QMessageBox::Critical, translated("Node Database"),
                    translated("The node database \"%1\" is damaged.").arg(QDir::toNativeSeparators(file)),
                    QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("recoveryBox"));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(offerText(file, saved, backup));
    box.setDetailedText(damage.detail);
    QPushButton* quit = box.addButton(translated("Quit"), QMessageBox::RejectRole);
    QPushButton* useSaved =
        saved.isEmpty() ? nullptr : box.addButton(translated("Use What Was Saved"), QMessageBox::AcceptRole);
    QPushButton* useBackup =
        backup.isEmpty() ? nullptr : box.addButton(translated("Restore the Backup"), QMessageBox::AcceptRole);
    box.setDefaultButton(useBackup ? useBackup : useSaved ? useSaved : quit);
    box.setEscapeButton(quit);
    box.exec();
    const QAbstractButton* chosen = box.clickedButton();
    if (!chosen || chosen == quit)
        return false;
    if (StoreBackup::restore(chosen == useBackup ? backup : saved, file, &error))
        return true;
    QMessageBox::critical(parent, translated("Node Database"), error.message);
    return false;
}

} // namespace DatabaseRecovery

} // namespace ko
