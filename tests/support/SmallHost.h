#ifndef TESTS_SUPPORT_SMALLHOST_H
#define TESTS_SUPPORT_SMALLHOST_H

#include "ko/ActionLog.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"

#include <QMap>

#include <functional>
#include <map>
#include <memory>
#include <tuple>

namespace testsupport {

class SmallInspector;

/// What the parts of one small host share; it outlives the database while a handle is about.
struct SmallHostState
{
    QStringList calls;
    std::function<void(SmallInspector*)> setUpInspector;

    /// Notes "setter(first,second)".
    void record(const char* call, const QStringList& arguments = QStringList());
};

typedef std::shared_ptr<SmallHostState> SmallHostStatePointer;

/// Proxy settings that note each setter as "proxy.setUseProxy(true)".
template <class Base>
class RecordingProxy : public Base
{
public:
    RecordingProxy(const QString& prefix, const SmallHostStatePointer& state)
        : m_prefix(prefix)
        , m_state(state)
    {
    }

    void setUseProxy(bool use) override
    {
        record("setUseProxy", {QVariant(use).toString()});
        Base::setUseProxy(use);
    }
    void setProxyAddress(const QString& address, int port) override
    {
        record("setProxyAddress", {address, QString::number(port)});
        Base::setProxyAddress(address, port);
    }
    void setProxyUser(const QString& user, const QString& password) override
    {
        record("setProxyUser", {user, password});
        Base::setProxyUser(user, password);
    }
    void setSaveProxyPassword(bool save) override
    {
        record("setSaveProxyPassword", {QVariant(save).toString()});
        Base::setSaveProxyPassword(save);
    }

protected:
    void record(const char* call, const QStringList& arguments) const
    {
        m_state->record(qPrintable(m_prefix + QLatin1String(call)), arguments);
    }

private:
    QString m_prefix;
    SmallHostStatePointer m_state;
};

/// The global proxy; its calls begin with "globalProxy.".
class RecordingGlobalProxy : public RecordingProxy<ko::GlobalNetworkProxy>
{
public:
    explicit RecordingGlobalProxy(const SmallHostStatePointer& state);

    void setExceptions(const QString& list, QChar separator) override;
    void addException(const QString& pattern) override;
    void removeException(const QString& pattern) override;
};

/// The environments; their calls begin with "Environments::".
class SmallEnvironments : public ko::Environments
{
public:
    explicit SmallEnvironments(const SmallHostStatePointer& state);

    List list; ///< set it directly to prepare a test

    List getList() const override { return list; }
    void setList(const List& newList) override; ///< noted with the names
    void remove(const QString& id) override;

private:
    const SmallHostStatePointer m_state;
};

/// The audit log; it notes "log(NRen,old,new)" among the calls and keeps the text of each entry.
class SmallActionLog : public ko::ActionLog
{
public:
    explicit SmallActionLog(const SmallHostStatePointer& state);

    QStringList texts;

    void log(const ko::LogEntry& entry) override;

private:
    const SmallHostStatePointer m_state;
};

/// A small host of someone else's, in memory, built on the contract alone.
///
/// Every writing call is noted in \c calls, in its order, as "beginUpdateNode(cam1,-1)", "setPort(81)",
/// "setStringProperty(Name,Door)", "endUpdateNode(cam1)", "newNodeHint(Door)", "setActiveEnvironment(x)";
/// reading is not noted. Prepare nodes through the references that the add functions return, then
/// clearCalls(). It knows the types 2 ("IP camera") and 5 ("Channel device") with a full driver.
class SmallNodeDB : public ko::NodeDB
{
    Q_OBJECT

public:
    enum Driver { NoDriver, FullDriver, DriverWithoutHint, DriverWithoutInspector };

private:
    const SmallHostStatePointer m_state; // the references below lead into it

public:
    SmallNodeDB();
    ~SmallNodeDB() override;

    QStringList& calls;
    void clearCalls() { calls.clear(); }

    /// Runs for each inspector that a node or a driver makes, before the dialog gets it.
    std::function<void(SmallInspector*)>& setUpInspector;

    void defineType(ko::ENodeType type, const QString& name, Driver driver = FullDriver);

    /// An empty node. Types 2, 3 and 5 give an IPDeviceNode, 5 one that is ko::ISupportsChannels.
    /// The reference is good until the node is updated or removed.
    ko::Node& addNode(ko::ENodeType type, const QString& id, const QString& name);
    ko::IPDeviceNode& addCamera(const QString& id, const QString& name);
    ko::IPDeviceNode& addChannelDevice(const QString& id, const QString& name);

    /// A new hint, an IP-device hint for the types 2, 3 and 5. What is set in it is noted too.
    kom::smart<ko::NodeHint> createHint(ko::ENodeType type) const;

    /// The first environment added becomes the active one.
    void addEnvironment(const QString& id, const QString& name);

    SmallEnvironments environmentStore;
    RecordingGlobalProxy proxySettings;
    SmallActionLog actionLog;
    QString environment; ///< identifier of the active one
    QString recordingFolderPath;
    QString recordingTransponderIP;
    int connectionBandwidth = 0;

    /// The arguments of the last readableNodeTypeNames().
    mutable const QList<ko::ENodeType>* askedTypes = nullptr;
    mutable bool askedSorted = false;

    kom::smart<const ko::Node> node(const QString& id) const override;
    ko::Node* beginUpdateNode(const QString& id, int limit) override;
    void endUpdateNode(ko::Node* node) override;
    void newNodeHint(const ko::NodeHint& hint) override; ///< ids are "new1", "new2", ...
    QString lookupHint(const ko::NodeHint& hint) const override;
    void removeNode(const QString& id) override;
    QStringList nodeIdList(ko::ENodeType type) const override;
    QString readableNodeTypeName(ko::ENodeType type) const override;
    TypeNames readableNodeTypeNames(const QList<ko::ENodeType>* types, bool sorted) const override;
    kom::smart<ko::INodeDriverComponent> nodeDriver(ko::ENodeType type) const override;
    void addNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override;
    void removeNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override;
    QStringList relatedNodes(const QString& id, ko::ENodeRelationType type) const override;
    bool isDestinationOfNodeRelation(const QString& id, ko::ENodeRelationType type) const override;
    void startScanners(const std::string& name, unsigned interfaces, int limit) override;
    void stopScanners(const std::string& name) override;
    QString globalRecordingFolderPath() const override { return recordingFolderPath; }
    QString defaultRecordingTransponderIP() const override { return recordingTransponderIP; }
    int bandwidth() const override { return connectionBandwidth; }
    ko::GlobalNetworkProxy& globalProxy() override { return proxySettings; }
    ko::Environments& environments() override { return environmentStore; }
    QString activeEnvironment() const override { return environment; }
    void setActiveEnvironment(const QString& id) override;

private:
    struct Type
    {
        QString name;
        Driver driver;
    };
    struct Relation
    {
        QString from;
        QString to;
        ko::ENodeRelationType type;

        bool operator==(const Relation& other) const
        {
            return std::tie(from, to, type) == std::tie(other.from, other.to, other.type);
        }
    };

    std::map<ko::ENodeType, Type> m_types;
    std::map<QString, kom::smart<ko::Node>> m_nodes;
    QStringList m_order;
    QList<Relation> m_relations;
    int m_created = 0;
};

} // namespace testsupport

#endif
