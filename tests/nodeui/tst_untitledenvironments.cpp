#include "dialogs/EnvironmentDialog.h"

#include "support/ModalAnswer.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include <QListWidget>
#include <QPushButton>

using namespace testsupport;

/// The exact numbers, which only a process that has not added any environment yet can show.
class TestUntitledEnvironments : public QObject
{
    Q_OBJECT

private slots:
    void numbersGoOnAcrossDialogs()
    {
        SmallNodeDB db;
        ko::EnvironmentDialog first;
        first.show();
        QTest::mouseClick(child<QPushButton>(&first, "addPushButton"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(&first, "addPushButton"), Qt::LeftButton);
        auto* list = child<QListWidget>(&first, "listWidget");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), QString("Untitled 1"));
        QCOMPARE(list->item(1)->text(), QString("Untitled 2"));
        first.reject();

        ko::EnvironmentDialog second;
        second.show();
        QTest::mouseClick(child<QPushButton>(&second, "addPushButton"), Qt::LeftButton);
        QCOMPARE(child<QListWidget>(&second, "listWidget")->item(0)->text(), QString("Untitled 3"));
    }
};

KO_TEST_MAIN(TestUntitledEnvironments)
#include "tst_untitledenvironments.moc"
