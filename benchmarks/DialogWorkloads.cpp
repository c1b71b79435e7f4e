#include "RawInserter.h"
#include "Site.h"
#include "Stops.h"
#include "Workload.h"

#include "ChangedMeanwhile.h"
#include "EntryQuestions.h"
#include "LayoutAdapter.h"
#include "NodeCommands.h"
#include "NodeHistoryPage.h"
#include "UnsavedEdits.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/NodeAuthenticateDialog.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "drivers/InspectorPages.h"
#include "drivers/NodeTypes.h"
#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/ActionLog.h"
#include "ko/Node.h"
#include "ko/NodeHint.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace bench {

using namespace ko;

namespace {

std::unique_ptr<EditNodeDialog> openedByClient(HostNodeDB& db, const QString& id,
                                               const LayoutAdapter& layouts)
{
    auto dialog = std::make_unique<EditNodeDialog>(id, nullptr, false, NodeCommands::EditFlags, &layouts);
    NodeHistoryPage::addTo(*dialog, db, id);
    ChangedMeanwhile::addTo(*dialog, db, id, NodeEditors::Access::Write);
    paint(*dialog);
    return dialog;
}

/// The dialog of one camera as the client opens it, to its first picture: the first one since the database
/// was opened, or a later one.
class Editing : public Contest
{
public:
    enum class When { First, Later };

    Editing(int size, When when)
        : m_file(siteFile(size))
        , m_db(bench::open(m_file))
        , m_id(m_db->nodeIdList(AllNodeTypes).value(size / 2))
        , m_when(when)
    {
        if (when == When::Later)
            ours();
    }

    double ours() override
    {
        start();
        const UnsavedEdits unsaved(nullptr); // which see every window of the client
        const EntryQuestions questions(nullptr);
        std::unique_ptr<EditNodeDialog> dialog;
        return milliseconds([&] { dialog = openedByClient(*m_db, m_id, m_layouts); });
    }

    /// The same pages, empty, in the same tabs, after the same things.
    double baseline() override
    {
        start();
        std::unique_ptr<QDialog> dialog;
        std::vector<std::unique_ptr<InspectorPage>> pages;
        const double time = milliseconds([&] {
            dialog = std::make_unique<QDialog>();
            QTabWidget* tabs = new QTabWidget;
            QVBoxLayout* layout = new QVBoxLayout(dialog.get());
            layout->addWidget(tabs);
            layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                   QDialogButtonBox::Apply));
            const QVector<PageSpec> specs = pagesOf(IPDeviceType);
            QWidget* tab = nullptr;
            for (const PageSpec& spec : specs) {
                if (!tab || tab->objectName() != QLatin1String(spec.tab)) {
                    tab = new QWidget;
                    tab->setObjectName(QLatin1String(spec.tab));
                    new QVBoxLayout(tab);
                    tabs->addTab(tab, QLatin1String(spec.title));
                }
                pages.push_back(spec.create(tab));
                tab->layout()->addWidget(pages.back()->widget());
            }
            paint(*dialog);
        });
        return time;
    }

private:
    void start()
    {
        if (m_when == When::Later)
            return;
        m_db.reset();
        m_db = bench::open(m_file);
        passTime(300); // until somebody has seen the list, found the camera and opened it
    }

    const QString m_file;
    const LayoutAdapter m_layouts;
    std::unique_ptr<HostNodeDB> m_db;
    const QString m_id;
    const When m_when;
};

/// What is left in memory when the first such dialog since the start is closed.
class KeptByEditing : public Contest
{
public:
    explicit KeptByEditing(int size)
        : m_file(siteFile(size))
    {
    }

    double ours() override
    {
        const std::unique_ptr<HostNodeDB> db = bench::open(m_file);
        const QString id = db->nodeIdList(AllNodeTypes).value(0);
        passTime(300);
        const double before = bytesInUse();
        openedByClient(*db, id, m_layouts).reset();
        QCoreApplication::processEvents();
        return bytesInUse() - before;
    }

    double baseline() override { return 1024.0 * 1024.0; }

private:
    const QString m_file;
    const LayoutAdapter m_layouts;
};

/// OK in that dialog, until the click returns, against the same change without a window.
class ClickingOk : public Contest
{
public:
    explicit ClickingOk(int size)
        : m_copy(size)
        , m_db(bench::open(m_copy.file()))
        , m_id(m_db->nodeIdList(AllNodeTypes).value(size / 2))
    {
    }

    double ours() override
    {
        const std::unique_ptr<EditNodeDialog> dialog = open();
        dialog->findChild<QLineEdit*>(QStringLiteral("nameLineEdit"))->setText(nextName());
        QPushButton* ok =
            dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Ok);
        return milliseconds([&] {
            ok->click();
            m_db->flush();
        });
    }

    double baseline() override
    {
        open(); // a dialog leaves the processor's caches cold
        const QString name = nextName();
        const QString before = m_db->node(m_id)->name();
        return milliseconds([&] {
            Node* node = m_db->beginUpdateNode(m_id, -1);
            node->setStringProperty(QStringLiteral("Name"), name);
            m_db->endUpdateNode(node);
            ActionLog::getInstance()->log(NodeRenameLogEntry(before, name));
            ActionLog::getInstance()->log(NodeChangeLogEntry(name));
            m_db->flush();
        });
    }

private:
    std::unique_ptr<EditNodeDialog> open() const
    {
        auto dialog =
            std::make_unique<EditNodeDialog>(m_id, nullptr, false, NodeCommands::EditFlags, &m_layouts);
        paint(*dialog);
        return dialog;
    }

    QString nextName() { return QStringLiteral("Gate %1").arg(++m_count); }

    SiteCopy m_copy;
    const LayoutAdapter m_layouts;
    const std::unique_ptr<HostNodeDB> m_db;
    const QString m_id;
    int m_count = 0;
};

/// Makes this many recording folders of nobody.
void addFolders(HostNodeDB& db, int count)
{
    for (int number = 0; number < count; ++number) {
        const kom::smart<NodeHint> hint =
            NodeTypes::driver(RecordingFolderType)->createNodeHint(RecordingFolderType);
        const QString path = QStringLiteral("//server/%1").arg(qint64(number) * 7919 % count);
        hint->setName(path);
        hint->setStringProperty(QStringLiteral("Path"), path);
        db.newNodeHint(*hint);
    }
    db.flush();
}

/// The dialog of one camera's recordings with its table of folders, which are in memory.
class Assigning : public Contest
{
public:
    explicit Assigning(int size)
        : m_db(bench::open(m_folder.filePath(QStringLiteral("n.kodb"))))
    {
        addFolders(*m_db, size);
        addCamera(*m_db, summaryOf(0, 1));
        m_camera = m_db->nodeIdList(IPDeviceType).value(0);
        const QStringList ids = m_db->nodeIdList(RecordingFolderType);
        for (const QString& id : ids)
            m_rows.append({m_db->node(id)->name(), m_db->node(id)->name(), id});
    }

    double ours() override
    {
        std::unique_ptr<QDialog> dialog;
        return milliseconds(
            [&] { dialog = std::make_unique<RecordingFolderAssignmentDialog>(m_camera, nullptr); });
    }

    double baseline() override
    {
        QTableWidget table(0, 3);
        return milliseconds([&] {
            for (const QStringList& cells : std::as_const(m_rows)) {
                const int row = table.rowCount();
                table.insertRow(row);
                for (int column = 0; column < cells.size(); ++column)
                    table.setItem(row, column, new QTableWidgetItem(cells.at(column)));
            }
        });
    }

private:
    QTemporaryDir m_folder;
    const std::unique_ptr<HostNodeDB> m_db;
    QString m_camera;
    QVector<QStringList> m_rows;
};

const char setProperties[] =
    "UPDATE node_properties SET properties = ? WHERE node = (SELECT n FROM nodes WHERE id = ?)";

/// Those of a camera, one of which differs.
QString propertiesWith(const QString& key, const QString& value)
{
    static const QString json = propertiesOfACamera();
    return json.left(json.size() - 1) + QStringLiteral(",\"%1\":[0,\"%2\"]}").arg(key, value);
}

/// What both dialogs for many cameras have in common: a database of cameras, and one for the baseline.
class ManyCameras : public Contest
{
public:
    ManyCameras(int size, What what)
        : m_what(what)
        , m_copy(size)
        , m_rawCopy(size)
        , m_db(bench::open(m_copy.file()))
        , m_raw(m_rawCopy.file())
        , m_ids(m_db->nodeIdList(AllNodeTypes))
    {
        for (const QString& id : std::as_const(m_ids))
            setText(id, QStringLiteral("FactoryIP"), QStringLiteral("10_0_0_%1").arg(id.left(8)));
        m_db->flush();
    }

protected:
    void setText(const QString& id, const QString& key, const QString& value)
    {
        Node* node = m_db->beginUpdateNode(id, -1);
        node->setStringProperty(key, value);
        m_db->endUpdateNode(node);
    }

    /// What the user waits for after OK, until all is on the disk.
    double confirmed(QDialog& dialog)
    {
        return measured(m_what, [&] {
            dialog.accept();
            turnUntil([&] { return !m_db->hasUnstoredChanges(); });
        });
    }

    /// \a work changes the same without us.
    template <class Work>
    double withoutUs(Work work) const
    {
        const double time = milliseconds(work);
        return m_what == What::Time ? time : longestStop;
    }

    const What m_what;
    SiteCopy m_copy;
    SiteCopy m_rawCopy;
    const std::unique_ptr<HostNodeDB> m_db;
    RawSqlite m_raw;
    const QStringList m_ids;
    int m_round = 0;
};

/// User and password for all of them, down to the disk.
class Authenticating : public ManyCameras
{
public:
    using ManyCameras::ManyCameras;

    double ours() override
    {
        NodeAuthenticateDialog dialog(nullptr, m_ids, Qt::Dialog);
        const QString user = QStringLiteral("user %1").arg(++m_round);
        dialog.findChild<QLineEdit*>(QStringLiteral("userNameLineEdit"))->setText(user);
        dialog.findChild<QLineEdit*>(QStringLiteral("passWordLineEdit"))->setText(user);
        return confirmed(dialog);
    }

    double baseline() override
    {
        const QString user = QStringLiteral("user %1").arg(++m_round);
        return withoutUs([&] {
            RawSqlite::Statement set(m_raw, setProperties);
            RawSqlite::Statement change(m_raw, "INSERT INTO changes (kind, id) VALUES ('N', ?)");
            const QString properties = propertiesWith(QStringLiteral("User"), user);
            m_raw.run("BEGIN IMMEDIATE");
            for (const QString& id : std::as_const(m_ids)) {
                set.bind(1, properties).bind(2, id).execute();
                change.bind(1, id).execute();
            }
            m_raw.run("COMMIT");
        });
    }
};

/// A folder of its own below one path for each of them, down to the disk. The first run makes the folders,
/// the others move them.
class MassAssigning : public ManyCameras
{
public:
    using ManyCameras::ManyCameras;

    double ours() override
    {
        RecordingFolderMassAssignmentDialog dialog(nullptr, m_ids, Qt::Dialog);
        dialog.findChild<QRadioButton*>(QStringLiteral("specificFileServerPathRadioButton"))
            ->setChecked(true);
        dialog.findChild<QLineEdit*>(QStringLiteral("pathLineEdit"))
            ->setText(QStringLiteral("/mnt/%1").arg(++m_round));
        return confirmed(dialog);
    }

    double baseline() override
    {
        const bool first = m_first;
        m_first = false;
        return withoutUs([&] {
            RawInserter inserter(m_raw);
            RawSqlite::Statement relate(m_raw, "INSERT INTO relations (source, destination, type) VALUES"
                                               " ((SELECT n FROM nodes WHERE id = ?),"
                                               " (SELECT n FROM nodes WHERE id = ?), 1)");
            RawSqlite::Statement set(m_raw, setProperties);
            RawSqlite::Statement usage(m_raw, "UPDATE nodes SET recording = 2 WHERE id = ?");
            RawSqlite::Statement location(m_raw, "UPDATE nodes SET location = ?, lookup = ? WHERE id = ?");
            RawSqlite::Statement change(m_raw, "INSERT INTO changes (kind, id) VALUES ('N', ?)");
            const QString path = QStringLiteral("/mnt/%1").arg(++m_round);
            const QString camera = propertiesWith(QStringLiteral("RecordingStorageUsage"), path);
            m_raw.run("BEGIN IMMEDIATE");
            for (const QString& id : std::as_const(m_ids)) {
                NodeSummary folder;
                folder.id = QStringLiteral("folder of ") + id;
                folder.name = path;
                if (first) {
                    inserter.insert(folder);
                    relate.bind(1, id).bind(2, folder.id).execute();
                    set.bind(1, camera).bind(2, id).execute();
                    usage.bind(1, id).execute();
                    change.bind(1, id).execute();
                }
                set.bind(1, propertiesWith(QStringLiteral("Path"), path + id)).bind(2, folder.id).execute();
                location.bind(1, path + id).bind(2, path + id).bind(3, folder.id).execute();
                change.bind(1, folder.id).execute();
            }
            m_raw.run("COMMIT");
        });
    }

private:
    bool m_first = true;
};

} // namespace

QVector<Workload> dialogWorkloads()
{
    const QString storedTwice =
        QStringLiteral("Each node is read as the disk has it before it is changed, its password"
                       " is sealed for it alone, and the history keeps what was before and after.");
    return {
        {QStringLiteral("recording folder assignment dialog, its folders in the table"),
         QStringLiteral("QTableWidget filled with sorting off"),
         2.0,
         {1000, 10000},
         make<Assigning>()},
        {QStringLiteral("user and password for all cameras, to disk"),
         QStringLiteral("raw SQLite, the same rows in one transaction"),
         2.0,
         {1000, 10000},
         make<Authenticating>(What::Time),
         false,
         7.5,
         storedTwice},
        {QStringLiteral("user and password for all cameras: longest stop of the event loop"),
         QStringLiteral("50 ms"),
         1.0,
         {10000},
         make<Authenticating>(What::LongestStop),
         false},
        {QStringLiteral("recording folders for all cameras moved, to disk"),
         QStringLiteral("raw SQLite, the same rows in one transaction"),
         2.0,
         {1000, 10000},
         make<MassAssigning>(What::Time),
         false,
         3.6,
         storedTwice},
        {QStringLiteral("recording folders for all cameras moved: longest stop of the event loop"),
         QStringLiteral("50 ms"),
         1.0,
         {10000},
         make<MassAssigning>(What::LongestStop),
         false},
        {QStringLiteral("dialog of a camera, the first since the start, to its first picture"),
         QStringLiteral("the same pages without a database"), 1.5, allSizes,
         [](int size) { return std::make_unique<Editing>(size, Editing::When::First); }, false},
        {QStringLiteral("dialog of a camera, a later one, to its first picture"),
         QStringLiteral("the same pages without a database"), 1.5, allSizes,
         [](int size) { return std::make_unique<Editing>(size, Editing::When::Later); }, false},
        {QStringLiteral("OK in that dialog, until the click returns and the disk has it"),
         QStringLiteral("the same change without a window, to disk and log"), 1.5, allSizes,
         make<ClickingOk>(), false},
        {QStringLiteral("memory kept after the dialog of a camera (bytes)"), QStringLiteral("1 MB"), 1,
         allSizes, make<KeptByEditing>(), false},
    };
}

} // namespace bench
