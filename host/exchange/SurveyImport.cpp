#include "exchange/SurveyImport.h"

#include "database/HostNodeDB.h"
#include "exchange/CsvReader.h"
#include "exchange/FileName.h"
#include "exchange/ImportLogEntry.h"
#include "exchange/RecordingPath.h"
#include "exchange/SurveyTarget.h"
#include "exchange/SurveyText.h"
#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "ko/ActionLog.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/OutsideText.h"
#include "secrets/Keyring.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace ko {

namespace {

/// Creates the node of a hint and returns its id, an empty one on failure.
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

bool write(const QString& id, const SurveyRow& row)
{
    Node* node = NodeDB::getDB()->beginUpdateNode(id, -1);
    auto* device = dynamic_cast<IPDeviceNode*>(node);
    if (device)
        row.write(*device);
    NodeDB::getDB()->endUpdateNode(node);
    return device;
}

/// The database as this host's own; null if it is another host's.
HostNodeDB* hostDatabase()
{
    return qobject_cast<HostNodeDB*>(NodeDB::getDB());
}

QVector<DeviceFinder::Known> knownDevices()
{
    QVector<DeviceFinder::Known> devices;
    // Summaries are in memory; without them every node has to be looked at once.
    if (const HostNodeDB* db = hostDatabase()) {
        const QVector<NodeSummary> summaries = db->summaries();
        for (const NodeSummary& summary : summaries)
            devices.append({summary.id, summary.name, summary.location});
        return devices;
    }
    const QStringList ids = NodeDB::getDB()->nodeIdList(AllNodeTypes);
    for (const QString& id : ids) {
        const auto node = deviceNode(id);
        if (!node.null())
            devices.append({id, node->name(), node->address()});
    }
    return devices;
}

/// Where locks belong to the process, whoever closes one of its files takes them away.
bool isDatabase(const struct stat& info)
{
    const HostNodeDB* db = hostDatabase();
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
    , m_cause(Cause::now(Purpose::Import, OutsideText::visible(QFileInfo(fileName).fileName())))
    , m_progress(progress)
    , m_finder(knownDevices)
{
}

CameraSurvey::ImportResult SurveyImport::check()
{
    isSound(NodeDB::getDB() ? Pass::Foresee : Pass::Check);
    return m_result;
}

CameraSurvey::ImportResult SurveyImport::run()
{
    if (!NodeDB::getDB()) {
        m_result.error = SurveyText::tr("There is no database.");
    } else if (isSound(Pass::Check)) {
        followOthers();
        readFile(Pass::Apply);
    }
    log();
    if (!m_result.storeFailed && !store([] {}))
        log();
    return m_result; // an entry of the log that waits is stored with the next changes
}

bool SurveyImport::isSound(Pass pass)
{
    return open() && readFile(pass) && canStorePasswords();
}

/// Other programs and other windows add devices between two parts of the list.
void SurveyImport::followOthers()
{
    const auto follow = [this](const NodeID& id) {
        if (!m_isImporting)
            m_finder.changed(id);
    };
    QObject::connect(NodeDB::getDB(), &NodeDB::nodeInserted, &m_context, follow);
    QObject::connect(NodeDB::getDB(), &NodeDB::nodeUpdated, &m_context, follow);
}

/// Stores what \a work did. False when that failed: nothing more is tried then. What others did is stored
/// before, so that nothing but this is taken back.
bool SurveyImport::store(const std::function<void()>& work)
{
    HostNodeDB* db = hostDatabase();
    if (!db) {
        work(); // other hosts store in their own way
        return true;
    }
    StoreError error;
    const auto nothing = [] {};
    // Alone, so that two programs that import one list do not both find a device missing, and add it.
    const auto workInSet = [&] {
        const ChangeScope scope(*db, m_cause);
        work();
    };
    const bool stored = db->runAlone(nothing, &error) == HostNodeDB::Outcome::Stored &&
                        db->runAlone(workInSet, &error) == HostNodeDB::Outcome::Stored;
    if (!stored)
        storeFailed(error.message);
    m_storedAdded = m_result.added;
    m_storedUpdated = m_result.updated;
    return stored;
}

void SurveyImport::storeFailed(const QString& reason)
{
    if (m_result.added > m_storedAdded || m_result.updated > m_storedUpdated) {
        hostDatabase()->discardUnstoredChanges();
        m_isLogged = false;
    }
    m_result.added = m_storedAdded;
    m_result.updated = m_storedUpdated;
    m_result.storeFailed = true;
    m_result.error =
        SurveyText::tr("%1 The import has stopped there; only what is counted here is stored. Import the "
                       "file again for the rest.")
            .arg(reason);
}

void SurveyImport::log()
{
    if (m_isLogged || m_result.added + m_result.updated == 0 || !NodeDB::getDB())
        return;
    m_isLogged = true;
    auto* db = qobject_cast<HostNodeDB*>(NodeDB::getDB());
    std::optional<ChangeScope> scope;
    if (db)
        scope.emplace(*db, m_cause);
    ActionLog::getInstance()->log(
        ImportLogEntry(m_cause.subject, m_result.added, m_result.updated, m_result.badLines.size()));
}

bool SurveyImport::open()
{
    const QByteArray name = FileName::toBytes(m_fileName);
    struct stat info = {};
    const bool exists = ::stat(name.constData(), &info) == 0;
    if (exists && !S_ISREG(info.st_mode)) { // a pipe can't be read twice, and opening one may wait for ever
        m_result.error = SurveyText::tr("%1 is not a regular file.").arg(m_fileName);
        return false;
    }
    if (exists && isDatabase(info)) {
        m_result.error = SurveyText::tr("%1 is the node database itself.").arg(m_fileName);
        return false;
    }
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    const QString reason = qt_error_string(errno);
    if (descriptor >= 0 && m_file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    m_result.error = exists ? QString() : FileName::refusal(m_fileName);
    if (m_result.error.isEmpty())
        m_result.error = SurveyText::tr("%1 cannot be read: %2").arg(m_fileName, reason);
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
    const qint64 total = (pass == Pass::Foresee ? 1 : 2) * m_file.size();
    bool more = true;
    const auto read = [&] { more = readSome(reader, header, pass); };
    while (more && m_progress.ask(doneBefore + reader.bytesRead(), total)) {
        if (pass != Pass::Apply)
            read();
        else if (!store(read))
            return false;
    }
    m_result.cancelled = more;
    return !more && m_result.error.isEmpty();
}

/// Until it is time to tell how far it is; false when nothing more is to be read.
bool SurveyImport::readSome(CsvReader& reader, const SurveyHeader& header, Pass pass)
{
    QStringList cells;
    do {
        if (!reader.readRecord(&cells)) {
            m_result.error = reader.error();
            return false;
        }
        QString reason = reader.recordError();
        const SurveyRow row = reason.isEmpty() ? SurveyRow::read(header, cells, &reason) : SurveyRow();
        if (reason.isEmpty() && !row.isEmpty())
            take(reader.line(), row, pass, &reason);
        if (!reason.isEmpty())
            m_result.badLines.append({reader.line(), reason});
        if (m_result.badLines.size() >= CameraSurvey::MaximumBadLines) {
            m_result.error = SurveyText::tr("%1 lines are bad; this is not a list of cameras.")
                                 .arg(int(CameraSurvey::MaximumBadLines));
            return false;
        }
    } while (!m_progress.isDue());
    return true;
}

void SurveyImport::take(qint64 line, const SurveyRow& row, Pass pass, QString* reason)
{
    if (pass != Pass::Apply && row.has(SurveyColumn::Password))
        m_passwords.add(QString::number(line));
    if (pass == Pass::Check)
        return;
    const QScopedValueRollback<bool> importing(m_isImporting, true);
    import(line, row, pass, reason);
}

/// Before the first change: a device that was added without its password would be there the next time.
bool SurveyImport::canStorePasswords()
{
    const auto* db = dynamic_cast<const HostNodeDB*>(NodeDB::getDB());
    if (m_passwords.isEmpty() ||
        (Keyring::ofInstallation().prepareAgain() && (!db || db->canStorePasswords())))
        return true;
    if (Keyring::ofInstallation().isKept()) {
        m_result.error =
            SurveyText::tr("The passwords of the list (in line %1) cannot be stored, because this "
                           "computer does not have the key of the shared database. Give its "
                           "passphrase first. Nothing was imported.")
                .arg(m_passwords.text());
        return false;
    }
    m_result.error =
        SurveyText::tr("The passwords of the list (in line %1) cannot be stored, because the key that seals "
                       "them is not there. Unlock your keychain, bring the key file back, or make your "
                       "configuration folder writable. Nothing was imported.")
            .arg(m_passwords.text());
    return false;
}

bool SurveyImport::readHeader(CsvReader& reader, SurveyHeader* header)
{
    QStringList titles;
    if (!reader.readRecord(&titles)) {
        m_result.error = reader.error().isEmpty() ? SurveyText::tr("The file is empty.") : reader.error();
    } else if (!reader.recordError().isEmpty()) {
        m_result.error = SurveyText::tr("The first line cannot be read: %1").arg(reader.recordError());
    } else {
        *header = SurveyHeader::read(titles, &m_result.error);
        m_result.ignoredColumns = header->ignoredColumns();
    }
    return m_result.error.isEmpty();
}

/// Or counts what would be done.
void SurveyImport::import(qint64 line, const SurveyRow& row, Pass pass, QString* reason)
{
    const kom::smart<NodeHintIPDevice> hint = SurveyTarget::describe(row);
    if (hint.null()) {
        *reason = SurveyText::tr("devices of this type cannot be added here");
        return;
    }
    if (row.has(SurveyColumn::RecordingPath) && !RecordingPath::canBeAssigned()) {
        *reason = SurveyText::tr("recording folders cannot be added here");
        return;
    }
    const QString id = m_finder.find(row, *hint, reason);
    if (reason->isEmpty() && !id.isEmpty())
        *reason = SurveyTarget::refusal(id, row);
    if (!reason->isEmpty())
        return;
    if (pass == Pass::Foresee)
        m_forecast.take(line, row, *hint, id, &m_result);
    else if (id.isEmpty())
        add(row, *hint, reason);
    else
        update(id, row, reason);
}

void SurveyImport::add(const SurveyRow& row, NodeHint& hint, QString* reason)
{
    const QString id = create(hint);
    if (id.isEmpty()) {
        *reason = SurveyText::tr("the device could not be added");
        return;
    }
    m_finder.added(id, row);
    if (row.has(SurveyColumn::RecordingPath))
        RecordingPath::assign(id, row.value(SurveyColumn::RecordingPath));
    ++m_result.added;
}

void SurveyImport::update(const QString& id, const SurveyRow& row, QString* reason)
{
    const auto node = deviceNode(id);
    const QString path = row.value(SurveyColumn::RecordingPath);
    const bool otherPath = !path.isEmpty() && path != RecordingPath::of(id);
    if (!otherPath && !row.differs(*node)) {
        ++m_result.unchanged;
        return;
    }
    if (row.differs(*node) && !write(id, row)) {
        *reason = SurveyText::tr("the device could not be changed");
        return;
    }
    if (otherPath)
        RecordingPath::assign(id, path);
    logChange(id, node->name());
    ++m_result.updated;
}

} // namespace ko
