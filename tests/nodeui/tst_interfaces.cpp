#include "support/TestMain.h"

#include "interfaces/IAccessGroup.h"
#include "interfaces/IComponent.h"
#include "interfaces/IErrorInfo.h"
#include "interfaces/IIOInterface.h"
#include "interfaces/ILayoutAdapter.h"
#include "interfaces/INodeDriverComponent.h"
#include "interfaces/IRequiresExplicitStartupAndShutdown.h"
#include "interfaces/ISegmentSearchable.h"
#include "interfaces/IStorageObject.h"
#include "interfaces/ISupportsChannels.h"
#include "interfaces/InterfaceStub.h"
#include "ko/NodeHint.h"

#include <type_traits>

using namespace ko;

namespace {

/// An interface made concrete, which tells when it is destroyed.
template <class Interface>
class Concrete : public Interface
{
public:
    ~Concrete() override { ++destroyed; }

    static int destroyed;
};
template <class Interface>
int Concrete<Interface>::destroyed = 0;

class Driver : public INodeDriverComponent
{
public:
    InspectorWidget* createInspectorWidget(NodeHint*, unsigned) override { return nullptr; }
    kom::smart<NodeHint> createNodeHint(ENodeType) override { return kom::smart<NodeHint>(); }
};

class Layouts : public ILayoutAdapter
{
public:
    QList<Layout> layouts() const override { return QList<Layout>(); }
};

class Channels : public ISupportsChannels
{
public:
    void setChannel(int) override {}
    int channel() const override { return 1; }
};

/// A component of a host: several interfaces, one root, and its own answers.
class Component : public virtual IComponent,
                  public virtual ISupportsChannels,
                  public virtual IErrorInfo,
                  public virtual IIOInterface
{
public:
    void setChannel(int channel) override { m_channel = channel; }
    int channel() const override { return m_channel; }

    using IInterface::getInterface;
    void* getInterface(const std::string& id) override
    {
        if (id == ISupportsChannels::ID())
            return static_cast<ISupportsChannels*>(this);
        return IInterface::getInterface(id);
    }

private:
    int m_channel = 1;
};

template <class Derived, class... Bases>
constexpr bool derives = (std::is_base_of_v<Bases, Derived> && ...) &&
                         // ambiguous, and so not convertible, unless the inheritance is virtual
                         (std::is_convertible_v<Derived*, Bases*>&&...);

template <class Interface>
constexpr bool isValue =
    std::is_default_constructible_v<Interface>&& std::is_copy_constructible_v<Interface>&&
        std::is_copy_assignable_v<Interface>&& std::has_virtual_destructor_v<Interface>;

static_assert(derives<Concrete<IComponent>, IComponent, IInterface>);
static_assert(derives<Concrete<ICanBeLocalized>, ICanBeLocalized, IInterface>);
static_assert(derives<Driver, INodeDriverComponent, ICanBeLocalized, IInterface>);
static_assert(derives<Concrete<IAccessGroup>, IAccessGroup, IInterface>);
static_assert(derives<Layouts, ILayoutAdapter, IInterface>);
static_assert(derives<Concrete<ISegmentSearchable>, ISegmentSearchable, IInterface>);
static_assert(derives<Concrete<IErrorInfo>, IErrorInfo, IInterface>);
static_assert(derives<Channels, ISupportsChannels, IInterface>);
static_assert(
    derives<Concrete<ISupportsNonBlockingIOInterface>, ISupportsNonBlockingIOInterface, IInterface>);
static_assert(derives<Concrete<IIOInterface>, IIOInterface, ISupportsNonBlockingIOInterface, IInterface>);
static_assert(
    derives<Concrete<IEventRetrievalInterface>, IEventRetrievalInterface, ::komEventRetrievalInterface,
            ::komEventStorageStatusInterface, ::komInterface, IInterface>);
static_assert(
    derives<Concrete<IStorageObject>, IStorageObject, IEventRetrievalInterface, ::komEventRetrievalInterface,
            ::komEventStorageStatusInterface, ::komInterface, IInterface>);
static_assert(derives<InterfaceStub, IInterface>);
static_assert(derives<Component, IComponent, ISupportsChannels, IErrorInfo, IIOInterface, IInterface>);
static_assert(!std::is_base_of_v<IInterface, IRequiresExplicitStartupAndShutdown>);

static_assert(std::is_same_v<decltype(IInterface::ID()), const std::string&>);
static_assert(std::is_same_v<decltype(IComponent::ID()), const std::string&>);
static_assert(std::is_same_v<decltype(ICanBeLocalized::ID()), const std::string&>);
static_assert(std::is_same_v<decltype(INodeDriverComponent::ID()), const char*>);
static_assert(std::is_same_v<decltype(IAccessGroup::ID()), const char*>);
static_assert(std::is_same_v<decltype(ISegmentSearchable::ID()), const char*>);
static_assert(std::is_same_v<decltype(IErrorInfo::ID()), const char*>);
static_assert(std::is_same_v<decltype(ISupportsChannels::ID()), const char*>);
static_assert(std::is_same_v<decltype(IRequiresExplicitStartupAndShutdown::ID()), const char*>);

} // namespace

class tst_Interfaces : public QObject
{
    Q_OBJECT

private slots:
    void identifiers_data();
    void identifiers();
    void sameStringOnEveryCall();
    void values();
    void rootAnswersItsIdentifierOnly_data();
    void rootAnswersItsIdentifierOnly();
    void interfacesAnswerAsTheRoot();
    void componentAnswersForItself();
    void destroyedThroughTheRoot();
    void openModes();

private:
    template <class Interface>
    void checkRoot(Interface& object);
    template <class Interface>
    void checkDestruction();
};

void tst_Interfaces::identifiers_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const QByteArray& id, const char* name) {
        QTest::newRow(name) << id << QByteArray(name);
    };
    row(IInterface::ID().c_str(), "ko::IInterface");
    row(IComponent::ID().c_str(), "ko::IComponent");
    row(ICanBeLocalized::ID().c_str(), "ko::ICanBeLocalized");
    row(INodeDriverComponent::ID(), "ko::INodeDriverComponent");
    row(IAccessGroup::ID(), "ko::IAccessGroup");
    row(ISegmentSearchable::ID(), "ko::ISegmentSearchable");
    row(IErrorInfo::ID(), "ko::IErrorInfo");
    row(ISupportsChannels::ID(), "ko::ISupportsChannels");
    row(IRequiresExplicitStartupAndShutdown::ID(), "ko::IRequiresExplicitStartupAndShutdown");
}

void tst_Interfaces::identifiers()
{
    QFETCH(QByteArray, id);
    QTEST(id, "expected");
}

void tst_Interfaces::sameStringOnEveryCall()
{
    QCOMPARE(&IInterface::ID(), &IInterface::ID());
    QCOMPARE(&IComponent::ID(), &IComponent::ID());
    QCOMPARE(&ICanBeLocalized::ID(), &ICanBeLocalized::ID());
}

void tst_Interfaces::values()
{
    QVERIFY(isValue<IInterface>);
    QVERIFY(isValue<InterfaceStub>);
    QVERIFY(isValue<Concrete<IComponent>>);
    QVERIFY(isValue<Concrete<ICanBeLocalized>>);
    QVERIFY(isValue<Driver>);
    QVERIFY(isValue<Concrete<IAccessGroup>>);
    QVERIFY(isValue<Layouts>);
    QVERIFY(isValue<Concrete<ISegmentSearchable>>);
    QVERIFY(isValue<Concrete<IErrorInfo>>);
    QVERIFY(isValue<Channels>);
    QVERIFY(isValue<IRequiresExplicitStartupAndShutdown>);
    QVERIFY(isValue<Concrete<IIOInterface>>);
    QVERIFY(isValue<Concrete<IStorageObject>>);

    Component first;
    first.setChannel(3);
    Component copy(first);
    QCOMPARE(copy.channel(), 3);
    copy.setChannel(4);
    first = copy;
    QCOMPARE(first.channel(), 4);
}

void tst_Interfaces::rootAnswersItsIdentifierOnly_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<bool>("answered");
    const QByteArray own("ko::IInterface");
    QTest::newRow("own") << own << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("unknown") << QByteArray("ko::IUnknown") << false;
    QTest::newRow("case") << QByteArray("ko::iinterface") << false;
    QTest::newRow("prefix") << QByteArray("ko::IInterfac") << false;
    QTest::newRow("longer") << QByteArray("ko::IInterface2") << false;
    QTest::newRow("blank") << QByteArray(" ko::IInterface") << false;
    QTest::newRow("zero behind") << own + '\0' << false;
    QTest::newRow("another interface") << QByteArray(ISupportsChannels::ID()) << false;
}

void tst_Interfaces::rootAnswersItsIdentifierOnly()
{
    QFETCH(QByteArray, id);
    QFETCH(bool, answered);
    InterfaceStub stub;
    IInterface& root = stub;
    const IInterface& constant = stub;
    QCOMPARE(root.getInterface(id.toStdString()), answered ? static_cast<void*>(&root) : nullptr);
    QCOMPARE(constant.getInterface(id.toStdString()), answered ? static_cast<const void*>(&root) : nullptr);
}

template <class Interface>
void tst_Interfaces::checkRoot(Interface& object)
{
    IInterface* root = &object;
    QCOMPARE(object.getInterface(std::string("ko::IInterface")), static_cast<void*>(root));
    for (const char* id : {INodeDriverComponent::ID(), ISupportsChannels::ID(), IErrorInfo::ID(),
                           IComponent::ID().c_str(), ICanBeLocalized::ID().c_str(), ""})
        QVERIFY2(!object.getInterface(std::string(id)), id);
}

void tst_Interfaces::interfacesAnswerAsTheRoot()
{
    Driver driver;
    checkRoot(driver);
    Layouts layouts;
    checkRoot(layouts);
    Channels channels;
    checkRoot(channels);
    Concrete<IComponent> component;
    checkRoot(component);
    Concrete<IErrorInfo> errorInfo;
    checkRoot(errorInfo);
    Concrete<IStorageObject> storage;
    checkRoot(storage);
    Concrete<IIOInterface> io;
    checkRoot(io);
}

void tst_Interfaces::componentAnswersForItself()
{
    Component component;
    component.setChannel(2);
    IErrorInfo& face = component;
    auto* channels = static_cast<ISupportsChannels*>(face.getInterface(ISupportsChannels::ID()));
    QVERIFY(channels);
    QCOMPARE(channels->channel(), 2);
    const IInterface& constant = component; // one override serves both
    QCOMPARE(constant.getInterface(ISupportsChannels::ID()), static_cast<const void*>(channels));
    QCOMPARE(constant.getInterface("ko::IInterface"), static_cast<const void*>(&constant));
    QVERIFY(!constant.getInterface(IErrorInfo::ID()));
}

template <class Interface>
void tst_Interfaces::checkDestruction()
{
    Concrete<Interface>::destroyed = 0;
    const IInterface* root = new Concrete<Interface>;
    delete root;
    QCOMPARE(Concrete<Interface>::destroyed, 1);
}

void tst_Interfaces::destroyedThroughTheRoot()
{
    checkDestruction<IInterface>();
    checkDestruction<InterfaceStub>();
    checkDestruction<IComponent>();
    checkDestruction<ICanBeLocalized>();
    checkDestruction<Driver>();
    checkDestruction<IAccessGroup>();
    checkDestruction<Layouts>();
    checkDestruction<ISegmentSearchable>();
    checkDestruction<IErrorInfo>();
    checkDestruction<Channels>();
    checkDestruction<ISupportsNonBlockingIOInterface>();
    checkDestruction<IIOInterface>();
    checkDestruction<IEventRetrievalInterface>();
    checkDestruction<IStorageObject>();

    Concrete<IStorageObject>::destroyed = 0;
    const ::komInterface* handle = new Concrete<IStorageObject>;
    delete handle;
    const ::komEventRetrievalInterface* retrieval = new Concrete<IStorageObject>;
    delete retrieval;
    const ::komEventStorageStatusInterface* status = new Concrete<IStorageObject>;
    delete status;
    QCOMPARE(Concrete<IStorageObject>::destroyed, 3);

    Concrete<IRequiresExplicitStartupAndShutdown>::destroyed = 0;
    const IRequiresExplicitStartupAndShutdown* started = new Concrete<IRequiresExplicitStartupAndShutdown>;
    delete started;
    QCOMPARE(Concrete<IRequiresExplicitStartupAndShutdown>::destroyed, 1);
}

void tst_Interfaces::openModes()
{
    // By address too: the constants are part of what is exported.
    const unsigned* const modes[] = {&IIOInterface::ReadableMode, &IIOInterface::WritableMode,
                                     &IIOInterface::SynchronousMode};
    QCOMPARE(*modes[0], 1u);
    QCOMPARE(*modes[1], 2u);
    QCOMPARE(*modes[2], 4u);
}

KO_TEST_MAIN(tst_Interfaces)
#include "tst_interfaces.moc"
