#include "support/SmallHost.h"

#include "support/SmallInspector.h"

#include "interfaces/INodeDriverComponent.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/LogEntry.h"
#include "ko/NodeHintIPDevice.h"
#include "kogen/Property.h"

#include <algorithm>

namespace testsupport {

namespace {

bool isDevice(ko::ENodeType type)
{
    return type == ko::IPDeviceType || type == ko::UrlCameraType || type == ko::ChannelDeviceType;
}

QString textOf(const QString& value)
{
    return value;
}
QString textOf(const ko::MACAddress& value)
{
    return value.toString(true);
}
QString textOf(const kogen::PropertySet& value)
{
    return value.allPropertyNames().join(QLatin1Char('+'));
}
template <class T>
QString textOf(T value)
{
    return QVariant(value).toString();
}

/// The typed properties of a node or a hint.
template <class Base>
class SmallProperties : public Base
{
public:
    SmallProperties(ko::ENodeType type, const SmallHostStatePointer& state)
        : Base(type)
        , m_state(state)
    {
    }

    const kogen::PropertySet& properties() const override { return m_properties; }
    bool hasProperty(const QString& name) const override { return m_properties.contains(name); }

    bool boolProperty(const QString& name, bool fallback) const override { return get(name, fallback); }
    void setBoolProperty(const QString& name, bool value) override { set("setBoolProperty", name, value); }
    int intProperty(const QString& name, int fallback) const override { return get(name, fallback); }
    void setIntProperty(const QString& name, int value) override { set("setIntProperty", name, value); }
    QString stringProperty(const QString& name, const QString& fallback) const override
    {
        return get(name, fallback);
    }
    void setStringProperty(const QString& name, const QString& value) override
    {
        set("setStringProperty", name, value);
    }
    float floatProperty(const QString& name, float fallback) const override { return get(name, fallback); }
    void setFloatProperty(const QString& name, float value) override { set("setFloatProperty", name, value); }
    kogen::PropertySet propertySetProperty(const QString& name,
                                           const kogen::PropertySet& fallback) const override
    {
        return get(name, fallback);
    }
    void setPropertySetProperty(const QString& name, const kogen::PropertySet& value) override
    {
        set("setPropertySetProperty", name, value);
    }
    void addProperty(const kogen::BaseProperty& property) override
    {
        addAs<QString>(property) || addAs<bool>(property) || addAs<int>(property) || addAs<float>(property) ||
            addAs<kogen::PropertySet>(property);
    }

    QString name() const override { return get(QLatin1String("Name"), QString()); }

protected:
    template <class T>
    T get(const QString& name, const T& fallback) const
    {
        const auto property = m_properties[name].template cast<kogen::Property<T>>();
        return property.null() ? fallback : property->getValue();
    }

    template <class T>
    void put(const QString& name, const T& value)
    {
        m_changed |= !hasProperty(name) || get(name, T()) != value;
        m_properties.insert(kom::makeSmart<kogen::Property<T>>(name, value));
    }

    template <class T>
    void set(const char* call, const QString& name, const T& value)
    {
        m_state->record(call, {name, textOf(value)});
        put(name, value);
    }

    template <class T>
    bool addAs(const kogen::BaseProperty& property)
    {
        const auto* typed = dynamic_cast<const kogen::Property<T>*>(&property);
        if (typed)
            set("addProperty", property.propertyName(), typed->getValue());
        return typed;
    }

    template <class T>
    void assign(const char* call, T& field, const T& value)
    {
        m_state->record(call, {textOf(value)});
        m_changed |= !(field == value);
        field = value;
    }

    SmallHostStatePointer m_state;
    kogen::PropertySet m_properties;
    bool m_changed = false;
};

template <class Base>
class SmallHint : public SmallProperties<Base>
{
public:
    using SmallProperties<Base>::SmallProperties;
    ~SmallHint() override { this->m_state->record("~hint"); }

    void setName(const QString& name) override
    {
        this->m_state->record("setName", {name});
        this->put(QLatin1String("Name"), name);
    }
};

/// What the database alone does with a node.
class StoredNode
{
public:
    virtual ~StoredNode() = default;

    /// A copy to write into.
    virtual ko::Node* copy() const = 0;
    virtual bool changed() const = 0;
    virtual void createdFrom(const ko::NodeHint& hint) = 0;
    virtual void named(const QString& name) = 0;
};

template <class Base>
class SmallNode : public SmallProperties<Base>, public StoredNode
{
public:
    SmallNode(ko::ENodeType type, const QString& id, const SmallHostStatePointer& state)
        : SmallProperties<Base>(type, state)
        , m_id(id)
    {
    }

    QString id() const override { return m_id; }
    QIcon icon() const override { return QIcon(); }
    void* creationContext() const override { return m_context; }
    bool hasCreationContext() const override { return m_hasContext; }

    ko::InspectorWidget* createInspectorWidget(bool readOnly, unsigned flags) const override
    {
        this->m_state->record("createInspectorWidget", {m_id, textOf(readOnly), QString::number(flags)});
        return new SmallInspector(m_id, readOnly, flags, this->m_state);
    }

    void takeOverProperties(const ko::NodeHint& hint) override
    {
        this->m_state->record("takeOverProperties", {hint.name()});
        takeOver(hint);
    }

    bool changed() const override { return this->m_changed; }
    void named(const QString& name) override { this->put(QLatin1String("Name"), name); }
    void createdFrom(const ko::NodeHint& hint) override
    {
        takeOver(hint);
        m_context = hint.context;
        m_hasContext = true;
    }

protected:
    template <class Self>
    static ko::Node* copyOf(const Self& self)
    {
        Self* copy = new Self(self);
        copy->m_changed = false;
        return copy;
    }

    virtual void takeOver(const ko::NodeHint& hint)
    {
        for (const auto& entry : hint.properties())
            this->m_properties.insert(entry.second);
        this->m_changed = true;
    }

    QString m_id;
    void* m_context = nullptr;
    bool m_hasContext = false;
};

class PlainNode : public SmallNode<ko::Node>
{
public:
    using SmallNode<ko::Node>::SmallNode;

    ko::Node* copy() const override { return copyOf(*this); }
};

class DeviceNode : public SmallNode<ko::IPDeviceNode>
{
public:
    DeviceNode(ko::ENodeType type, const QString& id, const SmallHostStatePointer& state)
        : SmallNode<ko::IPDeviceNode>(type, id, state)
        , m_proxy(QLatin1String("proxy."), state)
    {
    }

    void notifyChange(int code) override { m_state->record("notifyChange", {textOf(code)}); }
    QString version() const override { return m_version; }
    void setVersion(const QString& version) override { assign("setVersion", m_version, version); }
    QString model() const override { return m_model; }
    void setModel(const QString& model) override { assign("setModel", m_model, model); }
    QString address() const override { return m_address; }
    void setAddress(const QString& address) override { assign("setAddress", m_address, address); }
    int port() const override { return m_port; }
    void setPort(int port) override { assign("setPort", m_port, port); }
    int bandwidth() const override { return m_bandwidth; }
    void setBandwidth(int bandwidth) override { assign("setBandwidth", m_bandwidth, bandwidth); }
    int controlMode() const override { return m_controlMode; }
    void setControlMode(int mode) override { assign("setControlMode", m_controlMode, mode); }
    ko::MACAddress macAddress() const override { return m_macAddress; }
    void setMacAddress(const ko::MACAddress& address) override
    {
        assign("setMacAddress", m_macAddress, address);
    }
    bool useSSL() const override { return m_useSSL; }
    void setUseSSL(bool useSSL) override { assign("setUseSSL", m_useSSL, useSSL); }
    QString user(int) const override { return m_user; }
    QString password(int) const override { return m_password; }
    void setUser(const QString& user, const QString& password) override
    {
        m_state->record("setUser", {user, password});
        m_changed |= m_user != user || m_password != password;
        m_user = user;
        m_password = password;
    }
    void setCredentialsEntered(bool entered) override
    {
        assign("setCredentialsEntered", m_credentialsEntered, entered);
    }
    const ko::NetworkProxy& proxy() const override { return m_proxy; }
    ko::NetworkProxy& proxy() override
    {
        m_changed = true; // who asks for the writable one is about to write
        return m_proxy;
    }

    ko::Node* copy() const override { return copyOf(*this); }

protected:
    void takeOver(const ko::NodeHint& hint) override
    {
        SmallNode<ko::IPDeviceNode>::takeOver(hint);
        const auto* device = dynamic_cast<const ko::NodeHintIPDevice*>(&hint);
        if (!device)
            return;
        m_version = device->version;
        m_model = device->model;
        m_address = device->address;
        m_port = device->port;
        m_macAddress = device->macAddress;
        m_useSSL = device->useSSL;
        m_user = device->user;
        m_password = device->password;
        m_credentialsEntered = device->credentialsEntered;
        static_cast<ko::NetworkProxy&>(m_proxy) = device->proxy;
    }

private:
    RecordingProxy<ko::NetworkProxy> m_proxy;
    QString m_version;
    QString m_model;
    QString m_address;
    int m_port = 80;
    int m_bandwidth = -1;
    int m_controlMode = -1;
    ko::MACAddress m_macAddress;
    bool m_useSSL = false;
    QString m_user;
    QString m_password;
    bool m_credentialsEntered = false;
};

class ChannelNode : public DeviceNode, public virtual ko::ISupportsChannels
{
public:
    using DeviceNode::DeviceNode;

    void setChannel(int channel) override { assign("setChannel", m_channel, channel); }
    int channel() const override { return m_channel; }

    ko::Node* copy() const override { return copyOf(*this); }

protected:
    void takeOver(const ko::NodeHint& hint) override
    {
        DeviceNode::takeOver(hint);
        if (const auto* device = dynamic_cast<const ko::NodeHintIPDevice*>(&hint))
            m_channel = device->channel;
    }

private:
    int m_channel = 1;
};

ko::Node* newNode(ko::ENodeType type, const QString& id, const SmallHostStatePointer& state)
{
    if (type == ko::ChannelDeviceType)
        return new ChannelNode(type, id, state);
    if (isDevice(type))
        return new DeviceNode(type, id, state);
    return new PlainNode(type, id, state);
}

kom::smart<ko::NodeHint> newHint(ko::ENodeType type, const SmallHostStatePointer& state)
{
    if (isDevice(type))
        return kom::makeSmart<SmallHint<ko::NodeHintIPDevice>>(type, state);
    return kom::makeSmart<SmallHint<ko::NodeHint>>(type, state);
}

StoredNode& stored(ko::Node& node)
{
    return dynamic_cast<StoredNode&>(node);
}

class SmallDriver : public ko::INodeDriverComponent
{
public:
    SmallDriver(SmallNodeDB::Driver kind, const SmallHostStatePointer& state)
        : m_kind(kind)
        , m_state(state)
    {
    }

    ko::InspectorWidget* createInspectorWidget(ko::NodeHint* hint, unsigned flags) override
    {
        m_state->record("createInspectorWidget", {textOf(int(hint->type)), QString::number(flags)});
        if (m_kind == SmallNodeDB::DriverWithoutInspector)
            return nullptr;
        return new SmallInspector(*hint, flags, m_state);
    }

    kom::smart<ko::NodeHint> createNodeHint(ko::ENodeType type) override
    {
        m_state->record("createNodeHint", {textOf(int(type))});
        return m_kind == SmallNodeDB::DriverWithoutHint ? kom::smart<ko::NodeHint>() : newHint(type, m_state);
    }

private:
    const SmallNodeDB::Driver m_kind;
    const SmallHostStatePointer m_state;
};

} // namespace

void SmallHostState::record(const char* call, const QStringList& arguments)
{
    calls.append(QLatin1String(call) + QLatin1Char('(') + arguments.join(QLatin1Char(',')) +
                 QLatin1Char(')'));
}

RecordingGlobalProxy::RecordingGlobalProxy(const SmallHostStatePointer& state)
    : RecordingProxy<ko::GlobalNetworkProxy>(QLatin1String("globalProxy."), state)
{
}

void RecordingGlobalProxy::setExceptions(const QString& list, QChar separator)
{
    record("setExceptions", {list, separator});
    GlobalNetworkProxy::setExceptions(list, separator);
}

void RecordingGlobalProxy::addException(const QString& pattern)
{
    record("addException", {pattern});
    GlobalNetworkProxy::addException(pattern);
}

void RecordingGlobalProxy::removeException(const QString& pattern)
{
    record("removeException", {pattern});
    GlobalNetworkProxy::removeException(pattern);
}

SmallEnvironments::SmallEnvironments(const SmallHostStatePointer& state)
    : m_state(state)
{
}

void SmallEnvironments::setList(const List& newList)
{
    QStringList names;
    for (const auto& environment : newList)
        names.append(environment.second);
    m_state->record("Environments::setList", names);
    list = newList;
}

void SmallEnvironments::remove(const QString& id)
{
    m_state->record("Environments::remove", {id});
    list.erase(std::remove_if(list.begin(), list.end(), [&](const auto& entry) { return entry.first == id; }),
               list.end());
}

SmallActionLog::SmallActionLog(const SmallHostStatePointer& state)
    : m_state(state)
{
}

void SmallActionLog::log(const ko::LogEntry& entry)
{
    QStringList arguments(entry.typeCode().toString());
    for (const ko::LogValue* value : entry.values())
        arguments.append(value->toString());
    m_state->record("log", arguments);
    texts.append(entry.text());
}

SmallNodeDB::SmallNodeDB()
    : m_state(std::make_shared<SmallHostState>())
    , calls(m_state->calls)
    , setUpInspector(m_state->setUpInspector)
    , environmentStore(m_state)
    , proxySettings(m_state)
    , actionLog(m_state)
{
    defineType(ko::IPDeviceType, QLatin1String("IP camera"));
    defineType(ko::ChannelDeviceType, QLatin1String("Channel device"));
}

SmallNodeDB::~SmallNodeDB() = default;

void SmallNodeDB::defineType(ko::ENodeType type, const QString& name, Driver driver)
{
    m_types[type] = Type{name, driver};
}

ko::Node& SmallNodeDB::addNode(ko::ENodeType type, const QString& id, const QString& name)
{
    const kom::smart<ko::Node> node(newNode(type, id, m_state));
    stored(*node).named(name);
    m_nodes[id] = node;
    m_order.append(id);
    return *node;
}

ko::IPDeviceNode& SmallNodeDB::addCamera(const QString& id, const QString& name)
{
    return dynamic_cast<ko::IPDeviceNode&>(addNode(ko::IPDeviceType, id, name));
}

ko::IPDeviceNode& SmallNodeDB::addChannelDevice(const QString& id, const QString& name)
{
    return dynamic_cast<ko::IPDeviceNode&>(addNode(ko::ChannelDeviceType, id, name));
}

kom::smart<ko::NodeHint> SmallNodeDB::createHint(ko::ENodeType type) const
{
    return newHint(type, m_state);
}

void SmallNodeDB::addEnvironment(const QString& id, const QString& name)
{
    if (environmentStore.list.isEmpty())
        environment = id;
    environmentStore.list.append(qMakePair(id, name));
}

kom::smart<const ko::Node> SmallNodeDB::node(const QString& id) const
{
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? kom::smart<const ko::Node>() : kom::smart<const ko::Node>(found->second);
}

ko::Node* SmallNodeDB::beginUpdateNode(const QString& id, int limit)
{
    m_state->record("beginUpdateNode", {id, textOf(limit)});
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? nullptr : stored(*found->second).copy();
}

void SmallNodeDB::endUpdateNode(ko::Node* node)
{
    const kom::smart<ko::Node> owned(node);
    m_state->record("endUpdateNode", {node ? node->id() : QString()});
    if (!node || m_nodes.find(node->id()) == m_nodes.end() || !stored(*node).changed())
        return;
    m_nodes[node->id()] = owned;
    emit nodeUpdated(node->id());
}

void SmallNodeDB::newNodeHint(const ko::NodeHint& hint)
{
    m_state->record("newNodeHint", {hint.name()});
    const QString id = QString::fromLatin1("new%1").arg(++m_created);
    stored(addNode(hint.type, id, hint.name())).createdFrom(hint);
    emit nodeInserted(id);
}

QString SmallNodeDB::lookupHint(const ko::NodeHint& hint) const
{
    const auto* wanted = dynamic_cast<const ko::NodeHintIPDevice*>(&hint);
    for (const QString& id : m_order) {
        const auto device = m_nodes.at(id).cast<const ko::IPDeviceNode>();
        if (wanted && !device.null() && !wanted->address.isEmpty() && device->address() == wanted->address)
            return id;
    }
    return QString();
}

void SmallNodeDB::removeNode(const QString& id)
{
    m_state->record("removeNode", {id});
    if (m_nodes.erase(id) == 0)
        return;
    m_order.removeAll(id);
    m_relations.erase(std::remove_if(m_relations.begin(), m_relations.end(),
                                     [&](const Relation& r) { return r.from == id || r.to == id; }),
                      m_relations.end());
    emit nodeRemoved(id);
}

QStringList SmallNodeDB::nodeIdList(ko::ENodeType type) const
{
    QStringList ids;
    for (const QString& id : m_order) {
        if (type == ko::AllNodeTypes || m_nodes.at(id)->type == type)
            ids.append(id);
    }
    return ids;
}

QString SmallNodeDB::readableNodeTypeName(ko::ENodeType type) const
{
    const auto found = m_types.find(type);
    return found == m_types.end() ? QString::fromLatin1("Type %1").arg(int(type)) : found->second.name;
}

ko::NodeDB::TypeNames SmallNodeDB::readableNodeTypeNames(const QList<ko::ENodeType>* types, bool sorted) const
{
    askedTypes = types;
    askedSorted = sorted;
    QList<ko::ENodeType> offered;
    if (types) {
        offered = *types;
    } else {
        for (const auto& type : m_types)
            offered.append(type.first);
    }
    TypeNames names;
    for (ko::ENodeType type : std::as_const(offered))
        names.append(qMakePair(type, readableNodeTypeName(type)));
    if (sorted)
        std::sort(names.begin(), names.end(),
                  [](const auto& a, const auto& b) { return a.second < b.second; });
    return names;
}

kom::smart<ko::INodeDriverComponent> SmallNodeDB::nodeDriver(ko::ENodeType type) const
{
    const auto found = m_types.find(type);
    if (found == m_types.end() || found->second.driver == NoDriver)
        return kom::smart<ko::INodeDriverComponent>();
    return kom::makeSmart<SmallDriver>(found->second.driver, m_state);
}

void SmallNodeDB::addNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type)
{
    m_state->record("addNodeRelation", {from, to, textOf(int(type))});
    const Relation relation = {from, to, type};
    if (!m_relations.contains(relation))
        m_relations.append(relation);
}

void SmallNodeDB::removeNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type)
{
    m_state->record("removeNodeRelation", {from, to, textOf(int(type))});
    m_relations.removeAll(Relation{from, to, type});
}

QStringList SmallNodeDB::relatedNodes(const QString& id, ko::ENodeRelationType type) const
{
    QStringList ids;
    for (const Relation& relation : m_relations) {
        if (relation.from == id && relation.type == type)
            ids.append(relation.to);
    }
    return ids;
}

bool SmallNodeDB::isDestinationOfNodeRelation(const QString& id, ko::ENodeRelationType type) const
{
    return std::any_of(m_relations.begin(), m_relations.end(),
                       [&](const Relation& r) { return r.to == id && r.type == type; });
}

void SmallNodeDB::startScanners(const std::string& name, unsigned interfaces, int limit)
{
    m_state->record("startScanners", {QString::fromStdString(name), textOf(int(interfaces)), textOf(limit)});
}

void SmallNodeDB::stopScanners(const std::string& name)
{
    m_state->record("stopScanners", {QString::fromStdString(name)});
}

void SmallNodeDB::setActiveEnvironment(const QString& id)
{
    m_state->record("setActiveEnvironment", {id});
    environment = id;
}

} // namespace testsupport
