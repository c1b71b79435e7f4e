#include "journeys/Monkey.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include "../sharing/DeskTesting.h"

#include "SiteKeyPrompt.h"
#include "SiteOpening.h"
#include "SiteSharing.h"
#include "sharing/SiteConnection.h"

#include <QDialogButtonBox>

using namespace ko;
using namespace testsupport;

namespace {

/// A window on a copy of a site, as the program has it.
struct SharedDesk
{
    explicit SharedDesk(const QString& address)
        : db(openDatabase(SiteOpening(address, SiteOpening::Way::Line).file()))
        , sharing(*db, address)
        , window(*db)
    {
        SiteKeyPrompt::watch(*db, sharing, &window);
        window.resize(1000, 700);
        window.show();
    }

    bool isUpToDate() const { return sharing.state().kind == SharingState::UpToDate; }

    const std::unique_ptr<HostNodeDB> db;
    SiteSharing sharing;
    MainWindow window;
};

void makeKey(QDialog* dialog)
{
    for (const char* field : {"freshLineEdit", "againLineEdit"})
        child<QLineEdit>(dialog, field)->setText(QStringLiteral("seven brown horses"));
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    KO_TRY_VERIFY(!dialog->isVisible());
}

} // namespace

/// Whatever a random user of a shared database hits, at a desk whose server comes and goes: undoing all of it
/// brings back what was there, at the desk as at the site. KO_MONKEY_EVENTS makes it long, KO_MONKEY_SEED
/// takes another seed.
class tst_MonkeyAtASite : public QObject
{
    Q_OBJECT

private slots:
    void everythingCanBeUndone();
};

void tst_MonkeyAtASite::everythingCanBeUndone()
{
    PostgresServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString failure = makeSite(server, QStringLiteral("site"));
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    const QString url = server.url(QStringLiteral("site"));
    const ModalAnswer answer(makeKey);
    SharedDesk desk(url);
    HostNodeDB& db = *desk.db;
    KO_TRY_VERIFY(answer.fired() && desk.sharing.key().isHere && desk.isUpToDate());
    db.environments().setList({{"{h}", "Home"}, {"{o}", "Office"}});
    db.setActiveEnvironment("{h}");
    db.setGlobalRecordingFolderPath("/recordings");
    for (int i = 1; i <= 6; ++i)
        addCamera(db, QStringLiteral("Camera %1").arg(i), QStringLiteral("10.1.0.%1").arg(i));
    QVERIFY(db.flush());
    QApplication::setActiveWindow(&desk.window);
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    const QStringList before = contentOf(db);

    UndoStack steps(db);
    const int seed = qEnvironmentVariableIntValue("KO_MONKEY_SEED");
    int restarts = 0;
    // By events, not by time: a fast toolkit would be done before the first failure.
    const auto fail = [&](int events) {
        if (events % 150 != 75)
            return;
        server.kill();
        QVERIFY2(server.start(), qPrintable(server.error()));
        ++restarts;
    };
    Monkey monkey(desk.window, seed ? quint32(seed) : 4, eventsToSend(500), fail);
    monkey.run();
    QVERIFY(restarts > 0);
    QVERIFY(db.flush());
    QVERIFY(monkey.dialogs() > 5); // else nothing was tried
    QString problem;
    QVERIFY(undoAll(db, steps, &problem) > 0);
    QCOMPARE(problem, QString());
    const QStringList after = contentOf(db);
    QCOMPARE(without(before, after).join('\n'), QString());
    QCOMPARE(without(after, before).join('\n'), QString());

    const auto atTheSite = [&server] {
        const QString state = server.run(QStringLiteral("site"), QStringLiteral("SELECT ko.state()"));
        return siteState(QJsonDocument::fromJson(state.toUtf8()).object());
    };
    KO_TRY_VERIFY(desk.isUpToDate() && atTheSite() == deskState(db.fileName()));
}

KO_TEST_MAIN(tst_MonkeyAtASite)
#include "tst_monkeyatasite.moc"
