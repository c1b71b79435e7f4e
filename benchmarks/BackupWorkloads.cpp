#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "ko/Node.h"
#include "store/StoreBackup.h"

#include <QFile>

#include <chrono>
#include <future>

#include <unistd.h>

namespace bench {

using namespace ko;

namespace {

/// A backup, quiet or while the client stores something every 20 ms.
class BackingUp : public Contest
{
public:
    enum class Against { Copy, Quiet };

    BackingUp(int size, Against against)
        : m_against(against)
        , m_copy(size)
        , m_db(bench::open(m_copy.file()))
        , m_id(m_db->nodeIdList(AllNodeTypes).value(0))
    {
        QObject::connect(&m_writer, &QTimer::timeout, [this] {
            Node* node = m_db->beginUpdateNode(m_id, -1);
            node->setStringProperty(QStringLiteral("Name"), QString::number(++m_round));
            m_db->endUpdateNode(node);
        });
    }

    double ours() override
    {
        if (m_against == Against::Copy)
            return backUp();
        m_writer.start(20);
        const double time = backUp();
        m_writer.stop();
        return time;
    }

    double baseline() override
    {
        if (m_against == Against::Quiet)
            return backUp();
        const QString target = m_folder.filePath(QStringLiteral("copy"));
        QFile::remove(target);
        return milliseconds([&] {
            QFile copy(target);
            if (!QFile::copy(m_copy.file(), target) || !copy.open(QIODevice::ReadWrite) ||
                fsync(copy.handle()) != 0)
                qFatal("%s cannot be copied", qPrintable(m_copy.file()));
        });
    }

private:
    /// As the client does it, in a thread.
    double backUp()
    {
        const QString target = m_folder.filePath(QStringLiteral("%1.kodb").arg(++m_round));
        const double time = milliseconds([&] {
            StoreError error;
            std::future<bool> backup = std::async(
                std::launch::async, [&] { return StoreBackup::write(m_copy.file(), target, &error); });
            while (backup.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
                QCoreApplication::processEvents();
            if (!backup.get())
                qFatal("%s", qPrintable(error.detail));
        });
        QFile::remove(target);
        return time;
    }

    const Against m_against;
    const QTemporaryDir m_folder;
    SiteCopy m_copy;
    const std::unique_ptr<HostNodeDB> m_db;
    const QString m_id;
    QTimer m_writer;
    int m_round = 0;
};

} // namespace

QVector<Workload> backupWorkloads()
{
    return {
        {QStringLiteral("backup"),
         QStringLiteral("the file copied, to disk"),
         3.0,
         {10000, 100000},
         make<BackingUp>(BackingUp::Against::Copy),
         false,
         15,
         QStringLiteral(
             "The copy is looked through completely, every index and reference, before it is taken for "
             "a backup.")},
        {QStringLiteral("backup while the client stores every 20 ms"),
         QStringLiteral("a quiet one"),
         2.0,
         {10000, 100000},
         make<BackingUp>(BackingUp::Against::Quiet),
         false},
    };
}

} // namespace bench
