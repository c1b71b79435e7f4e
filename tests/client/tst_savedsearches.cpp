#include "WindowFixture.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "Languages.h"
#include "SavedSearches.h"
#include "SavedSearchesDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSettings>
#include <QTimer>
#include <QToolButton>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;

/// Searches get a name, are found again by it, renamed and removed.
class tst_SavedSearches : public QObject, private testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void savedAndChosen();
    void nothingIsNotSaved();
    void aNameThatThereIsGetsTheNewSearch();
    void renamed();
    void removedAfterAQuestion();
    void keptWithOddSigns();
    void sameInAnotherLanguage();
    void button();

private:
    QMenu* menu() const { return child<QMenu>(m_window.get(), "savedSearchMenu"); }
    QLineEdit* search() const { return child<QLineEdit>(m_window.get(), "searchLineEdit"); }
    QComboBox* types() const { return child<QComboBox>(m_window.get(), "typeComboBox"); }
    void choose(const QString& text) const;
    QStringList shown() const;
    static QStringList names();
    static void use(const char* language);
};

void tst_SavedSearches::init()
{
    QSettings().clear();
    openWindow();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_SavedSearches::choose(const QString& text) const
{
    emit menu()->aboutToShow();
    const QList<QAction*> actions = menu()->actions();
    for (QAction* action : actions) {
        if (action->text().remove('&') == text && action->isEnabled())
            return action->trigger();
    }
    QFAIL(qPrintable(text + " is not in the menu"));
}

QStringList tst_SavedSearches::shown() const
{
    QStringList names;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        names.append(m_view->model()->index(row, NodeListModel::NameColumn).data().toString());
    return names;
}

QStringList tst_SavedSearches::names()
{
    QStringList names;
    const QVector<SavedSearch> all = SavedSearches::all();
    for (const SavedSearch& search : all)
        names.append(search.name);
    return names;
}

void tst_SavedSearches::savedAndChosen()
{
    search()->setText("gate");
    types()->setCurrentIndex(types()->findData(int(IPDeviceType)));
    {
        const Answers answers({[](QDialog* dialog) {
            auto* name = qobject_cast<QInputDialog*>(dialog);
            QCOMPARE(name->textValue(), QString("gate")); // proposed
            name->setTextValue("  At the\tgates ");
            confirm(dialog);
        }});
        choose("Save This Search...");
        QCOMPARE(answers.opened(), QStringList("saveSearchDialog"));
    }
    search()->clear();
    types()->setCurrentIndex(0);
    QCOMPARE(shown().size(), 5);
    choose("At the gates");
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south"}));
    QCOMPARE(search()->text(), QString("gate"));
    QCOMPARE(types()->currentData().toInt(), int(IPDeviceType));
}

void tst_SavedSearches::nothingIsNotSaved()
{
    emit menu()->aboutToShow();
    QVERIFY(!child<QAction>(menu(), "actionSaveSearch")->isEnabled());
    QVERIFY(!child<QAction>(menu(), "actionChangeSearches")->isEnabled());
    search()->setText("gate");
    const Answers answers({testsupport::cancel});
    choose("Save This Search...");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(names(), QStringList());
}

void tst_SavedSearches::aNameThatThereIsGetsTheNewSearch()
{
    SavedSearches::save({"Camera 10", "ten", AllNodeTypes});
    SavedSearches::save({"Camera 9", "nine", AllNodeTypes});
    QCOMPARE(names(), QStringList({"Camera 9", "Camera 10"}));
    SavedSearches::save({"Camera 9", "gate", AllNodeTypes});
    QCOMPARE(SavedSearches::all().size(), 2);
    QCOMPARE(SavedSearches::all().constFirst().text, QString("gate"));
}

void tst_SavedSearches::renamed()
{
    SavedSearches::save({"One", "gate", ViewType});
    SavedSearches::save({"Two", "yard", AllNodeTypes});
    SavedSearchesDialog dialog(m_window.get());
    dialog.show();
    auto* list = child<QListWidget>(&dialog, "searchesListWidget");
    auto* problem = child<QLabel>(&dialog, "problemLabel");
    QCOMPARE(list->currentRow(), 0);
    QTest::keyClick(list, Qt::Key_F2);
    auto* editor = list->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->setText("Two");
    QTest::keyClick(editor, Qt::Key_Return);
    KO_TRY_VERIFY(problem->isVisible());
    QCOMPARE(names(), QStringList({"One", "Two"}));
    QCOMPARE(list->item(0)->text(), QString("One"));
    list->item(0)->setText("Zero");
    QVERIFY(!problem->isVisible());
    QCOMPARE(names(), QStringList({"Two", "Zero"}));
    QCOMPARE(SavedSearches::all().constLast().type, ViewType);
    QCOMPARE(list->currentItem()->text(), QString("Zero"));
}

void tst_SavedSearches::removedAfterAQuestion()
{
    SavedSearches::save({"One", "gate", AllNodeTypes});
    SavedSearches::save({"Two", "yard", AllNodeTypes});
    SavedSearchesDialog dialog(m_window.get());
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    auto* list = child<QListWidget>(&dialog, "searchesListWidget");
    {
        const Answers answers({[](QDialog* box) { QTest::keyClick(box, Qt::Key_Return); }});
        KO_TRY_VERIFY(list->hasFocus());
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(answers.opened(), QStringList("removeSearchBox"));
    }
    QCOMPARE(names(), QStringList({"One", "Two"}));
    QApplication::setActiveWindow(&dialog);
    const testsupport::ModalAnswer answer(testsupport::ModalAnswer::press("Remove"));
    QTest::keyClick(list, Qt::Key_Delete);
    QVERIFY(answer.fired());
    QCOMPARE(names(), QStringList("Two"));
    QCOMPARE(list->currentItem()->text(), QString("Two"));
}

void tst_SavedSearches::keptWithOddSigns()
{
    const SavedSearch odd = {"R&D, \"north\" = 50%", "state:\"no answer\" -user:ad,min\\ ü", UrlCameraType};
    SavedSearches::save(odd);
    QCOMPARE(SavedSearches::all().constFirst().text, odd.text);
    emit menu()->aboutToShow();
    QCOMPARE(menu()->actions().constFirst()->text(), QString("R&&D, \"north\" = 50%"));
}

/// Beside the search field, by mouse and keyboard.
/// Windows hear of it in the event loop.
void tst_SavedSearches::use(const char* language)
{
    Languages::use(QLatin1String(language));
    QCoreApplication::processEvents();
}

void tst_SavedSearches::sameInAnotherLanguage()
{
    use("de");
    search()->setText(
        QStringLiteral("typ:ip -\"benutzer:a b\" Letzteänderung:heute gate-typ:x Ort:y \"typ\""));
    {
        const Answers answers({[](QDialog* dialog) {
            qobject_cast<QInputDialog*>(dialog)->setTextValue(QStringLiteral("Mine"));
            dialog->accept();
        }});
        choose(QStringLiteral("Diese Suche speichern..."));
    }
    use("en");
    choose(QStringLiteral("Mine"));
    QCOMPARE(search()->text(), QString("type:ip -\"user:a b\" lastchange:heute gate-typ:x Ort:y \"typ\""));
    use("de");
    choose(QStringLiteral("Mine"));
    QCOMPARE(search()->text(),
             QString("typ:ip -\"benutzer:a b\" letzteanderung:heute gate-typ:x Ort:y \"typ\""));
    use("en");
}

void tst_SavedSearches::button()
{
    auto* button = child<QToolButton>(m_window.get(), "savedSearchButton");
    QVERIFY(button->isVisible());
    QVERIFY(button->focusPolicy() & Qt::TabFocus);
    QVERIFY(!button->accessibleName().isEmpty());
    bool wasShown = false;
    QTimer::singleShot(0, this, [&] {
        wasShown = menu()->isVisible();
        menu()->close();
    });
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    KO_TRY_VERIFY(wasShown);
}

KO_TEST_MAIN(tst_SavedSearches)
#include "tst_savedsearches.moc"
