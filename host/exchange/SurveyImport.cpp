#include "exchange/SurveyImport.h"

#include "database/HostNodeDB.h"
#include "exchange/CsvReader.h"
#include "exchange/FileName.h"
#include "exchange/ImportLogEntry.h"
#include "exchange/RecordingPath.h"
#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "interfaces/INodeDriverComponent.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/ActionLog.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/OutsideText.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace ko {

namespace {

const int SslPort = 443;

QString say(const char* text)
{
    return QCoreApplication::translate("ko::CameraSurvey", text);
}

ENodeType typeOf(const SurveyRow& row)
{
    if (row.has(SurveyColumn::Type))
        return ENodeType(row.value(SurveyColumn::Type).toInt());
    return row.has(SurveyColumn::Channel) ? ChannelDeviceType : IPDeviceType;
}

/// A hint filled from the row, or null if there is no driver for such a device.
kom::smart<NodeHintIPDevice> describe(const SurveyRow& row)
{
    const auto driver = NodeDB::getDB()->nodeDriver(typeOf(row));
    if (driver.null())
        return kom::smart<NodeHintIPDevice>();
    auto hint = driver->createNodeHint(typeOf(row)).cast<NodeHintIPDevice>();
    for (int column = 0; column < SurveyFields::Count && !hint.null(); ++column) {
        const SurveyField& field = SurveyFields::field(column);
        if (field.describe && row.has(field.column))
            field.describe(*hint, row.value(column));
    }
    if (!hint.null() && hint->useSSL && !row.has(SurveyColumn::Port))
        hint->port = SslPort;
    return hint;
}

/// Creates the node of a hint and answers its id, an empty one on failure.
QString create(NodeHint& hint)
{
    QString id;
    NodeDB* db = NodeDB::getDB();
    hint.context = &id;
    const auto connection =
        QObject::connect(db, &NodeDB::nodeInserted, db, [db, target = &id](const NodeID& inserted) {
            const auto node = db->node(inserted);
            if (!node.null() && node->hasCreationContext() && node->creationContext() == target)
                *target = inserted;
        });
    db->newNodeHint(hint);
    QObject::disconnect(connection);
    return id;
}

bool differs(const IPDeviceNode& node, const SurveyRow& row, const SurveyField& field)
{
    return field.read && row.has(field.column) && row.value(field.column) != field.read(node);
}

bool differs(const IPDeviceNode& node, const SurveyRow& row)
{
    for (int column = 0; column < SurveyFields::Count; ++column) {
        if (differs(node, row, SurveyFields::field(column)))
            return true;
    }
    return false;
}

bool write(const QString& id, const SurveyRow& row)
{
    Node* node = NodeDB::getDB()->beginUpdateNode(id, -1);
    auto* device = dynamic_cast<IPDeviceNode*>(node);
    for (int column = 0; column < SurveyFields::Count && device; ++column) {
        const SurveyField& field = SurveyFields::field(column);
        if (differs(*device, row, field))
            field.write(*device, row.value(column));
    }
    NodeDB::getDB()->endUpdateNode(node);
    return device;
}

/// Whoever closes one of its files takes the locks away by which other programs know that it is in use.
bool isDatabase(const struct stat& info)
{
    const auto* db = qobject_cast<HostNodeDB*>(NodeDB::getDB());
    const QByteArray name = db ? QFile::encodeName(db->fileName()) : QByteArray();
    for (const char* suffix : {"", "-wal", "-shm"}) {
        struct stat own = {};
        if (db && ::stat((name + suffix).constData(), &own) == 0 && own.st_dev == info.st_dev &&
            own.st_ino == info.st_ino)
            return true;
    }
    return false;
}

void logChange(const QString& id, const QString& oldName)
{
    const auto node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    if (node->name() != oldName)
        ActionLog::getInstance()->log(NodeRenameLogEntry(oldName, node->name()));
    ActionLog::getInstance()->log(NodeChangeLogEntry(node->name()));
}

} // namespace

SurveyImport::SurveyImport(const QString& fileName, const CameraSurvey::Progress& progress)
    : m_fileName(fileName)
    , m_progress(progress
                     ? [this, progress](qint64 done, qint64 total) { return goOn(progress, done, total); }
                     : CameraSurvey::Progress())
{
}

CameraSurvey::ImportResult SurveyImport::run()
{
    if (open() && readFile(Pass::Check) && store())
        readFile(Pass::Apply);
    log();
    if (!m_result.storeFailed && !store())
        log();
    return m_result; // an entry of the log that waits is stored with the next changes
}

/// Between two lines. What the import did is stored before anybody else has a say, and what others did then
/// is stored before it goes on: so nothing but its own work is taken back when storing fails. Without anybody
/// to ask, all of it is one commit.
bool SurveyImport::goOn(const CameraSurvey::Progress& progress, qint64 done, qint64 total)
{
    return store() && progress(done, total) && store();
}

/// False when that failed: nothing more is tried then. Other hosts store in their own way.
bool SurveyImport::store()
{
    auto* db = qobject_cast<HostNodeDB*>(NodeDB::getDB());
    QString reason;
    const auto connection =
        db ? QObject::connect(db, &HostNodeDB::storeFailed,
                              [&reason](const StoreError& error) { reason = error.message; })
           : QMetaObject::Connection();
    const bool stored = !db || db->flush();
    QObject::disconnect(connection);
    if (!stored)
        storeFailed(reason);
    m_storedAdded = m_result.added;
    m_storedUpdated = m_result.updated;
    return stored;
}

void SurveyImport::storeFailed(const QString& reason)
{
    if (m_result.added > m_storedAdded || m_result.updated > m_storedUpdated) {
        qobject_cast<HostNodeDB*>(NodeDB::getDB())->discardUnstoredChanges();
        m_isLogged = false;
    }
    m_result.added = m_storedAdded;
    m_result.updated = m_storedUpdated;
    m_result.storeFailed = true;
    m_result.error = say("%1 The import has stopped there; only what is counted here is stored. Import the "
                         "file again for the rest.")
                         .arg(reason);
}

void SurveyImport::log()
{
    if (m_isLogged || m_result.added + m_result.updated == 0 || !NodeDB::getDB())
        return;
    m_isLogged = true;
    const QString name = OutsideText::visible(QFileInfo(m_fileName).fileName());
    ActionLog::getInstance()->log(
        ImportLogEntry(name, m_result.added, m_result.updated, m_result.badLines.size()));
}

bool SurveyImport::open()
{
    const QByteArray name = FileName::toBytes(m_fileName);
    struct stat info = {};
    const bool exists = ::stat(name.constData(), &info) == 0;
    if (!NodeDB::getDB()) {
        m_result.error = say("There is no database.");
        return false;
    }
    if (exists && !S_ISREG(info.st_mode)) { // a pipe can't be read twice, and opening one may wait for ever
        m_result.error = say("%1 is not a regular file.").arg(m_fileName);
        return false;
    }
    if (exists && isDatabase(info)) {
        m_result.error = say("%1 is the node database itself.").arg(m_fileName);
        return false;
    }
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    const QString reason = qt_error_string(errno);
    if (descriptor >= 0 && m_file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    m_result.error = exists ? QString() : FileName::refusal(m_fileName);
    if (m_result.error.isEmpty())
        m_result.error = say("%1 cannot be read: %2").arg(m_fileName, reason);
    return false;
}

/// Reads all lines, and imports them in the second pass; false when the import must not go on.
bool SurveyImport::readFile(Pass pass)
{
    m_file.seek(0);
    m_result.badLines.clear();
    CsvReader reader(&m_file);
    SurveyHeader header;
    if (!readHeader(reader, &header))
        return false;

    const qint64 doneBefore = pass == Pass::Apply ? m_file.size() : 0;
    QStringList cells;
    while (m_progress.goOn(doneBefore + reader.bytesRead(), 2 * m_file.size())) {
        if (!reader.readRecord(&cells)) {
            m_result.error = reader.error();
            return m_result.error.isEmpty();
        }
        QString reason = reader.recordError();
        const SurveyRow row = reason.isEmpty() ? SurveyRow::read(header, cells, &reason) : SurveyRow();
        if (reason.isEmpty() && !row.isEmpty() && pass == Pass::Apply)
            import(row, &reason);
        if (!reason.isEmpty())
            m_result.badLines.append({reader.line(), reason});
        if (m_result.badLines.size() >= CameraSurvey::MaximumBadLines) {
            m_result.error =
                say("%1 lines are bad; this is no list of cameras.").arg(int(CameraSurvey::MaximumBadLines));
            return false;
        }
    }
    m_result.cancelled = m_result.error.isEmpty();
    return false;
}

bool SurveyImport::readHeader(CsvReader& reader, SurveyHeader* header)
{
    QStringList titles;
    if (!reader.readRecord(&titles)) {
        m_result.error = reader.error().isEmpty() ? say("The file is empty.") : reader.error();
    } else if (!reader.recordError().isEmpty()) {
        m_result.error = say("The first line cannot be read: %1").arg(reader.recordError());
    } else {
        *header = SurveyHeader::read(titles, &m_result.error);
        m_result.ignoredColumns = header->ignoredColumns();
    }
    return m_result.error.isEmpty();
}

void SurveyImport::import(const SurveyRow& row, QString* reason)
{
    const kom::smart<NodeHintIPDevice> hint = describe(row);
    if (hint.null()) {
        *reason = say("devices of this type cannot be added here");
        return;
    }
    if (row.has(SurveyColumn::RecordingPath) && !RecordingPath::canBeAssigned()) {
        *reason = say("recording folders cannot be added here");
        return;
    }
    const QString id = m_finder.find(row, *hint, reason);
    if (!reason->isEmpty())
        return;
    if (id.isEmpty())
        add(row, *hint, reason);
    else
        update(id, row, reason);
}

void SurveyImport::add(const SurveyRow& row, NodeHint& hint, QString* reason)
{
    const QString id = create(hint);
    if (id.isEmpty()) {
        *reason = say("the device could not be added");
        return;
    }
    m_finder.added(id, row);
    if (row.has(SurveyColumn::RecordingPath))
        RecordingPath::assign(id, row.value(SurveyColumn::RecordingPath));
    ++m_result.added;
}

void SurveyImport::update(const QString& id, const SurveyRow& row, QString* reason)
{
    const auto node = NodeDB::getDB()->node(id).cast<const IPDeviceNode>();
    if (node.null()) {
        *reason = say("what is at this address is no device");
        return;
    }
    if (row.has(SurveyColumn::Channel) && !dynamic_cast<const ISupportsChannels*>(node.get())) {
        *reason = say("the device at this address has no channels");
        return;
    }
    const QString path = row.value(SurveyColumn::RecordingPath);
    const bool otherPath = !path.isEmpty() && path != RecordingPath::of(id);
    if (!otherPath && !differs(*node, row)) {
        ++m_result.unchanged;
        return;
    }
    if (differs(*node, row) && !write(id, row)) {
        *reason = say("the device could not be changed");
        return;
    }
    if (otherPath)
        RecordingPath::assign(id, path);
    logChange(id, node->name());
    ++m_result.updated;
}

} // namespace ko
