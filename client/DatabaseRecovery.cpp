#include "DatabaseRecovery.h"

#include "PlainMessageBox.h"
#include "WhileShowing.h"
#include "store/Salvage.h"
#include "store/StoreBackup.h"
#include "utils/FileDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QLocale>
#include <QPushButton>
#include <QVector>

#include <memory>

namespace ko {

namespace DatabaseRecovery {

namespace {

enum Choice { Quit, OpenAnother, Retry, StartAnew, UseSaved, UseBackup };

/// What there is to put in the place of a damaged file.
struct Found
{
    std::unique_ptr<Salvage> salvage;
    QString backup;

    QString saved() const { return salvage ? salvage->file() : QString(); }
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseRecovery)
};

QString timeOf(const QString& file, const QString& backup)
{
    const QVector<StoreBackup::Backup> backups = StoreBackup::backups(file);
    for (const StoreBackup::Backup& each : backups) {
        if (each.file == backup)
            return QLocale().toString(each.time.toLocalTime(), QLocale::ShortFormat);
    }
    return QString();
}

QString offerText(const QString& file, const Found& found)
{
    QStringList lines;
    lines.append(found.saved().isEmpty()
                     ? Texts::tr("Nothing in it can be read.")
                     : QCoreApplication::translate("DatabaseRecovery", "%n node(s) in it can still be read.",
                                                   nullptr, int(found.salvage->nodeCount())));
    lines.append(found.backup.isEmpty()
                     ? Texts::tr("There is no good backup.")
                     : Texts::tr("The newest good backup was made at %1.").arg(timeOf(file, found.backup)));
    if (!found.saved().isEmpty() || !found.backup.isEmpty())
        lines.append(Texts::tr("If you choose one of these, the damaged file is kept under another name. "
                               "Otherwise nothing is changed."));
    return lines.join(QLatin1Char('\n'));
}

/// A file of another kind that has backups was a database until something was written over it.
bool isDamaged(const QString& file, const StoreError& error)
{
    const bool isForeign = error.kind == StoreError::NotADatabase || error.kind == StoreError::OtherProgram;
    const bool isOurs = error.kind == StoreError::Damaged || error.kind == StoreError::OtherTables ||
                        error.kind == StoreError::Emptied;
    return isOurs || (isForeign && !StoreBackup::backups(file).isEmpty());
}

Found lookFor(const QString& file, QWidget* parent)
{
    Found found;
    doWhileShowing(Texts::tr("Node Database"),
                   Texts::tr("The node database is damaged. Looking for what can be read and for backups..."),
                   parent, [&] {
                       found.salvage = std::make_unique<Salvage>(file);
                       found.backup = StoreBackup::newestGood(file);
                   });
    return found;
}

Choice ask(PlainMessageBox& box, const QVector<Choice>& choices)
{
    const struct
    {
        Choice choice;
        const char* text;
        QMessageBox::ButtonRole role;
    } buttons[] = {
        {Quit, QT_TRANSLATE_NOOP("DatabaseRecovery", "&Quit"), QMessageBox::RejectRole},
        {OpenAnother, QT_TRANSLATE_NOOP("DatabaseRecovery", "&Open Another..."), QMessageBox::ActionRole},
        {Retry, QT_TRANSLATE_NOOP("DatabaseRecovery", "&Retry"), QMessageBox::AcceptRole},
        {StartAnew, QT_TRANSLATE_NOOP("DatabaseRecovery", "&Start an Empty One"),
         QMessageBox::DestructiveRole},
        {UseSaved, QT_TRANSLATE_NOOP("DatabaseRecovery", "Use What &Can Be Read"), QMessageBox::AcceptRole},
        {UseBackup, QT_TRANSLATE_NOOP("DatabaseRecovery", "Restore the &Backup"), QMessageBox::AcceptRole},
    };
    QHash<const QAbstractButton*, Choice> chosen;
    for (const auto& each : buttons) {
        if (!choices.contains(each.choice))
            continue;
        QPushButton* button = box.addButton(Texts::tr(each.text), each.role);
        chosen.insert(button, each.choice);
        if (each.choice == Quit)
            box.setEscapeButton(button);
        if (each.choice != StartAnew)
            box.setDefaultButton(button); // what comes last is best
    }
    box.exec();
    return chosen.value(box.clickedButton(), Quit);
}

QString damageText(StoreError::Kind kind)
{
    switch (kind) {
    case StoreError::Damaged:
        return Texts::tr("The node database \"%1\" is damaged.");
    case StoreError::OtherTables:
        return Texts::tr("The tables of the node database \"%1\" were changed by another program.");
    case StoreError::Emptied:
        return Texts::tr("The node database \"%1\" is empty or gone, although it held something.");
    default:
        return Texts::tr("The node database \"%1\" is damaged, or another file is in its place.");
    }
}

Choice askAboutDamage(const QString& file, const StoreError& error, const Found& found, QWidget* parent)
{
    PlainMessageBox box(QMessageBox::Critical, Texts::tr("Node Database"),
                        damageText(error.kind).arg(QDir::toNativeSeparators(file)), QMessageBox::NoButton,
                        parent);
    box.setObjectName(QStringLiteral("recoveryBox"));
    box.setInformativeText(offerText(file, found));
    box.setDetailedText(error.detail);
    QVector<Choice> choices = {OpenAnother, Quit};
    if (error.kind == StoreError::Emptied)
        choices.append(StartAnew);
    if (!found.saved().isEmpty())
        choices.append(UseSaved);
    if (!found.backup.isEmpty())
        choices.append(UseBackup);
    return ask(box, choices);
}

Choice askAboutOthers(const StoreError& error, QWidget* parent)
{
    PlainMessageBox box(QMessageBox::Critical, Texts::tr("Node Database"), error.message,
                        QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("notOpenedBox"));
    box.setDetailedText(error.detail);
    return ask(box, {Quit, Retry, OpenAnother});
}

/// False if no file was chosen.
bool chooseAnother(QString* file, QWidget* parent)
{
    const QString chosen = FileDialogs::fileOrNewName(parent, Texts::tr("Open Node Database"),
                                                      Texts::tr("Node databases (*.kodb);;All files (*)"));
    if (!chosen.isEmpty())
        *file = chosen;
    return !chosen.isEmpty();
}

void startAnew(const QString& file, QWidget* parent)
{
    StoreError error;
    if (!StoreBackup::startAnew(file, &error))
        PlainMessageBox::ask(QMessageBox::Critical, parent, Texts::tr("Node Database"), error.message);
}

void putInPlace(const QString& source, const QString& file, QWidget* parent)
{
    StoreError error;
    if (!StoreBackup::restore(source, file, &error))
        PlainMessageBox::ask(QMessageBox::Critical, parent, Texts::tr("Node Database"), error.message);
}

} // namespace

bool offer(QString* file, const StoreError& error, QWidget* parent)
{
    const bool damaged = isDamaged(*file, error);
    const Found found = damaged ? lookFor(*file, parent) : Found();
    for (;;) {
        switch (damaged ? askAboutDamage(*file, error, found, parent) : askAboutOthers(error, parent)) {
        case Quit:
            return false;
        case Retry:
            return true;
        case OpenAnother:
            if (chooseAnother(file, parent))
                return true;
            break; // and is asked again
        case StartAnew:
            startAnew(*file, parent);
            return true;
        case UseSaved:
            putInPlace(found.saved(), *file, parent);
            return true;
        case UseBackup:
            putInPlace(found.backup, *file, parent);
            return true;
        }
    }
}

} // namespace DatabaseRecovery

} // namespace ko
