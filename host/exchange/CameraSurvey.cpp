#include "exchange/CameraSurvey.h"

#include "exchange/CsvWriter.h"
#include "exchange/FileName.h"
#include "exchange/ProgressReport.h"
#include "exchange/RecordingPath.h"
#include "exchange/SurveyFields.h"
#include "exchange/SurveyImport.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "secrets/Redaction.h"

#include <QCoreApplication>
#include <QSaveFile>

namespace ko {

namespace CameraSurvey {

namespace {

QString say(const char* text)
{
    return QCoreApplication::translate("ko::CameraSurvey", text);
}

QStringList titles()
{
    QStringList titles;
    for (int column = 0; column < SurveyFields::Count; ++column)
        titles.append(QLatin1String(SurveyFields::field(column).title));
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

QStringList record(const IPDeviceNode& device, Passwords passwords)
{
    QStringList cells;
    for (int column = 0; column < SurveyFields::Count; ++column)
        cells.append(cell(SurveyFields::field(column), device, passwords));
    return cells;
}

bool canBeToldApart(const IPDeviceNode& device)
{
    return !device.name().trimmed().isEmpty() || !device.address().trimmed().isEmpty();
}

/// Writes all devices; false on an error and when cancelled.
bool writeDevices(QIODevice* file, Passwords passwords, const Progress& progress, ExportResult* result)
{
    CsvWriter writer(file);
    ProgressReport report(progress);
    bool good = writer.writeRecord(titles());
    const QStringList ids = NodeDB::getDB()->nodeIdList(AllNodeTypes);
    for (int i = 0; i < ids.size() && good; ++i) {
        if (!report.goOn(i, ids.size())) {
            result->cancelled = true;
            return false;
        }
        const auto device = NodeDB::getDB()->node(ids.at(i)).cast<const IPDeviceNode>();
        if (device.null())
            continue;
        const bool wanted = canBeToldApart(*device);
        good = !wanted || writer.writeRecord(record(*device, passwords));
        ++(wanted ? result->written : result->skipped);
    }
    return good;
}

} // namespace

ImportResult importCameras(const QString& fileName, const Progress& progress)
{
    return SurveyImport(fileName, progress).run();
}

ExportResult exportCameras(const QString& fileName, Passwords passwords, const Progress& progress)
{
    ExportResult result;
    if (!NodeDB::getDB()) {
        result.error = say("There is no database.");
        return result;
    }
    result.error = FileName::refusal(fileName);
    if (!result.error.isEmpty())
        return result;
    QSaveFile file(fileName);
    // Set before anything is in it: the file holds passwords.
    const bool opened =
        file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const bool complete = opened && writeDevices(&file, passwords, progress, &result);
    if (!complete || !file.commit()) {
        // After half a write the toolkit knows no reason yet; the next one gets it from the system.
        if (file.isOpen())
            file.flush();
        if (!result.cancelled)
            result.error = say("%1 cannot be written: %2").arg(fileName, file.errorString());
        file.cancelWriting();
    }
    return result;
}

} // namespace CameraSurvey

} // namespace ko
