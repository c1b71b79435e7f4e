#include "exchange/CameraSurvey.h"

#include "devices/NodeTarget.h"
#include "exchange/CsvWriter.h"
#include "exchange/ExportFile.h"
#include "exchange/FileName.h"
#include "exchange/ProgressReport.h"
#include "exchange/RecordingPath.h"
#include "exchange/Sample.h"
#include "exchange/SurveyFields.h"
#include "exchange/SurveyImport.h"
#include "exchange/SurveyText.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "model/Redaction.h"
#include "secrets/Keyring.h"

namespace ko {

namespace CameraSurvey {

namespace {

QStringList titles()
{
    QStringList titles;
    for (const SurveyField& field : SurveyFields::all())
        titles.append(QLatin1String(field.title));
    return titles;
}

QString content(const SurveyField& field, const IPDeviceNode& device)
{
    if (field.column == SurveyColumn::RecordingPath)
        return RecordingPath::of(device.id());
    if (field.column == SurveyColumn::Type)
        return SurveyFields::typeText(device.type);
    return field.read(device);
}

/// A camera may have a URL with a password in it as its address.
QString cell(const SurveyField& field, const IPDeviceNode& device, Passwords passwords)
{
    if (passwords == Passwords::Write)
        return content(field, device);
    return field.column == SurveyColumn::Password ? QString() : Redaction::redacted(content(field, device));
}

QStringList record(const IPDeviceNode& device, Passwords passwords, const MoreColumns& more)
{
    QStringList cells;
    for (const SurveyField& field : SurveyFields::all())
        cells.append(cell(field, device, passwords));
    const QStringList others = more.cells ? more.cells(device.id()) : QStringList();
    for (const QString& other : others)
        cells.append(passwords == Passwords::Write ? other : Redaction::redacted(other));
    return cells;
}

bool canBeToldApart(const IPDeviceNode& device)
{
    return !device.name().trimmed().isEmpty() || !device.address().trimmed().isEmpty();
}

QString nameOf(const IPDeviceNode& device)
{
    return device.name().trimmed().isEmpty() ? device.address() : device.name();
}

/// Writes the devices among the nodes; false on an error and when cancelled.
bool writeDevices(QIODevice* file, const QStringList& ids, Passwords passwords, const Progress& progress,
                  const MoreColumns& more, ExportResult* result)
{
    CsvWriter writer(file);
    ProgressReport report(progress);
    Sample unread;
    bool good = writer.writeRecord(titles() + more.titles);
    for (int i = 0; i < ids.size() && good; ++i) {
        if (!report.goOn(i, ids.size())) {
            result->cancelled = true;
            return false;
        }
        const auto device = deviceNode(ids.at(i));
        if (device.null())
            continue;
        const bool wanted = canBeToldApart(*device);
        if (wanted && passwords == Passwords::Write && NodeTarget::hasUnreadPassword(*device))
            unread.add(nameOf(*device));
        good = !wanted || writer.writeRecord(record(*device, passwords, more));
        ++(wanted ? result->written : result->skipped);
    }
    if (!unread.isEmpty())
        result->error =
            SurveyText::tr("Nothing was written, because these passwords cannot be read: %1. Unlock your "
                           "keychain, bring the key file back, or leave the passwords out.")
                .arg(unread.text());
    return good && unread.isEmpty();
}

} // namespace

ImportResult check(const QString& fileName, const Progress& progress)
{
    return SurveyImport(fileName, progress).check();
}

ImportResult importCameras(const QString& fileName, const Progress& progress)
{
    return SurveyImport(fileName, progress).run();
}

ExportResult exportCameras(const QString& fileName, Passwords passwords, const Progress& progress,
                           const QStringList& only, const MoreColumns& more)
{
    ExportResult result;
    if (!NodeDB::getDB()) {
        result.error = SurveyText::tr("There is no database.");
        return result;
    }
    result.error = FileName::refusal(fileName);
    if (!result.error.isEmpty())
        return result;
    if (passwords == Passwords::Write)
        Keyring::ofInstallation().prepareAgain();
    ExportFile file(fileName);
    const QStringList ids = only.isEmpty() ? NodeDB::getDB()->nodeIdList(AllNodeTypes) : only;
    const bool written =
        file.open() && writeDevices(file.device(), ids, passwords, progress, more, &result) && file.commit();
    if (!written && !result.cancelled && result.error.isEmpty())
        result.error = file.whyNot();
    return result;
}

} // namespace CameraSurvey

} // namespace ko
