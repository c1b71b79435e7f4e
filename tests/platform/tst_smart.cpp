#include "support/TestMain.h"

#include "kom/smart.h"

#include <type_traits>
#include <vector>

namespace {

struct Counted
{
    Counted() { ++alive; }
    virtual ~Counted() { --alive; }
    static int alive;
};
int Counted::alive = 0;

struct Other
{
    virtual ~Other() = default;
};

struct Derived : Counted, Other
{
    explicit Derived(int n = 0)
        : number(n)
    {
    }
    int number;
};

struct Unrelated
{
    virtual ~Unrelated() = default;
};

struct NeverDefined;

struct Holder
{
    kom::smart<NeverDefined> handle;
};

/// Holds a handle to itself until that is reset.
struct SelfHeld : Counted
{
    kom::smart<SelfHeld> self;
};

} // namespace

class tst_Smart : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(Counted::alive, 0); }

    void nullState();
    void lastHandleDeletes();
    void assignmentLeavesTheGroup();
    void selfAssignment();
    void conversions();
    void deletedAsWhatItIs();
    void checkedCasts();
    void castJoinsTheGroup();
    void comparison();
    void incompleteType();
    void forwardsArguments();
    void resetWhileHeldByItself();
};

void tst_Smart::nullState()
{
    const kom::smart<Counted> none;
    QVERIFY(none.null());
    QVERIFY(!none.get());
    QVERIFY(kom::smart<Counted>(static_cast<Counted*>(nullptr)).null());
    kom::smart<Counted> copy(none);
    copy.reset();
    QVERIFY(copy.null());
    QVERIFY(none.cast<Derived>().null());
}

void tst_Smart::lastHandleDeletes()
{
    kom::smart<Counted> first(new Counted);
    QVERIFY(!first.null());
    kom::smart<Counted> second = first;
    std::vector<kom::smart<Counted>> more(5, second);
    first.reset();
    QVERIFY(first.null());
    QCOMPARE(Counted::alive, 1);
    second.reset();
    QCOMPARE(Counted::alive, 1);
    more.resize(1);
    QCOMPARE(Counted::alive, 1);
    more.clear();
    QCOMPARE(Counted::alive, 0);
}

void tst_Smart::assignmentLeavesTheGroup()
{
    kom::smart<Counted> first(new Counted);
    kom::smart<Counted> second(new Counted);
    QCOMPARE(Counted::alive, 2);
    first = second;
    QCOMPARE(Counted::alive, 1);
    QVERIFY(first == second);
    second = kom::smart<Counted>();
    QCOMPARE(Counted::alive, 1);
    QVERIFY(!first.null());
}

void tst_Smart::selfAssignment()
{
    kom::smart<Counted> handle(new Counted);
    const kom::smart<Counted>& same = handle;
    handle = same;
    QVERIFY(!handle.null());
    QCOMPARE(Counted::alive, 1);
}

void tst_Smart::conversions()
{
    const kom::smart<Derived> derived = kom::makeSmart<Derived>(7);
    const kom::smart<const Derived> readable = derived;
    const kom::smart<Counted> base = derived;
    const kom::smart<const Other> otherBase = derived;
    QCOMPARE(readable.get(), static_cast<const Derived*>(derived.get()));
    QCOMPARE(base.get(), static_cast<Counted*>(derived.get()));
    QCOMPARE(otherBase.get(), static_cast<const Other*>(derived.get()));
    // What would lose the const or guess at the type is left to cast().
    QVERIFY((!std::is_convertible<Derived*, kom::smart<Derived>>::value));
}

void tst_Smart::deletedAsWhatItIs()
{
    kom::smart<Other> other(new Derived); // leads to another address than the object's
    QCOMPARE(Counted::alive, 1);
    other.reset();
    QCOMPARE(Counted::alive, 0);
}

void tst_Smart::checkedCasts()
{
    const kom::smart<Counted> base = kom::makeSmart<Derived>(3);
    QCOMPARE(base.cast<Derived>()->number, 3);
    QCOMPARE(base.cast<const Derived>()->number, 3);
    QVERIFY(!base.cast<Other>().null()); // across
    QVERIFY(base.cast<Unrelated>().null());
    QVERIFY(kom::smart<Counted>(new Counted).cast<Derived>().null());
}

void tst_Smart::castJoinsTheGroup()
{
    kom::smart<Counted> base = kom::makeSmart<Derived>();
    kom::smart<Other> across = base.cast<Other>();
    base.reset();
    QCOMPARE(Counted::alive, 1);
    across.reset();
    QCOMPARE(Counted::alive, 0);
}

void tst_Smart::comparison()
{
    const kom::smart<Derived> one = kom::makeSmart<Derived>(1);
    const kom::smart<Derived> alike = kom::makeSmart<Derived>(1);
    const kom::smart<const Counted> sameObject = one;
    QVERIFY(one == sameObject);
    QVERIFY(!(one != sameObject));
    QVERIFY(one != alike);
    QVERIFY(kom::smart<Derived>() == kom::smart<Counted>());
}

void tst_Smart::incompleteType()
{
    Holder holder;
    const Holder copy = holder;
    holder.handle.reset();
    QVERIFY(copy.handle.null());
}

void tst_Smart::forwardsArguments()
{
    struct Taking
    {
        Taking(std::unique_ptr<int> n, QString& t)
            : number(std::move(n))
        {
            t = QLatin1String("reached");
        }
        std::unique_ptr<int> number;
    };
    QString text;
    const auto made = kom::makeSmart<Taking>(std::make_unique<int>(4), text);
    QCOMPARE(*made->number, 4);
    QCOMPARE((*made).number.get(), made.get()->number.get());
    QCOMPARE(text, QString("reached"));
}

void tst_Smart::resetWhileHeldByItself()
{
    kom::smart<SelfHeld> handle = kom::makeSmart<SelfHeld>();
    handle->self = handle;
    SelfHeld* object = handle.get();
    handle.reset();
    QCOMPARE(Counted::alive, 1);
    object->self.reset();
    QCOMPARE(Counted::alive, 0);
}

KO_TEST_MAIN(tst_Smart)
#include "tst_smart.moc"
