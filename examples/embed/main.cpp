// A program's own window, whose menu opens the dialogs of the library, over a database file:
//   example-embed cameras.kodb
// With --self-check it adds a camera through the menu and ends with 0 if the window lists it.

#include "database/HostNodeDB.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "ko/Node.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

namespace {

class Window : public QMainWindow
{
public:
    explicit Window(ko::NodeDB* database)
        : m_database(database)
        , m_list(new QListWidget(this))
    {
        setCentralWidget(m_list);
        QMenu* menu = menuBar()->addMenu(tr("&Cameras"));
        add = menu->addAction(tr("&Add..."));
        connect(add, &QAction::triggered, this, [this] {
            const QList<ko::ENodeType> cameras = {ko::IPDeviceType, ko::UrlCameraType};
            ko::AddNodeDialog(this, this, &cameras, true, 0).exec();
        });
        connect(m_list, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
            ko::EditNodeDialog(item->data(Qt::UserRole).toString(), this, false, 0, nullptr).exec();
        });
        connect(database, &ko::NodeDB::nodeInserted, this, &Window::fill);
        connect(database, &ko::NodeDB::nodeUpdated, this, &Window::fill);
        connect(database, &ko::NodeDB::nodeRemoved, this, &Window::fill);
        fill();
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < m_list->count(); ++row)
            names.append(m_list->item(row)->text());
        return names;
    }

    QAction* add;

private:
    void fill()
    {
        m_list->clear();
        const QStringList ids = m_database->nodeIdList(ko::IPDeviceType);
        for (const QString& id : ids) {
            auto* item = new QListWidgetItem(m_database->node(id)->name(), m_list);
            item->setData(Qt::UserRole, id);
        }
    }

    ko::NodeDB* const m_database;
    QListWidget* const m_list;
};

int selfCheck(Window* window)
{
    QTimer::singleShot(0, window, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QLineEdit*>("nameLineEdit")->setText("North gate");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    window->add->trigger();
    std::printf("The window lists: %s\n", qPrintable(window->names().join(", ")));
    return window->names() == QStringList("North gate") ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTranslator texts; // the dialogs speak the user's language
    if (texts.load(QLocale(), "nodeui", "_", ":/translations"))
        QCoreApplication::installTranslator(&texts);

    const QStringList arguments = application.arguments();
    ko::StoreError error;
    const std::unique_ptr<ko::HostNodeDB> database =
        ko::HostNodeDB::open(arguments.value(1, "cameras.kodb"), &error);
    if (!database) {
        std::fprintf(stderr, "%s\n", qPrintable(error.message));
        return 1;
    }
    Window window(database.get());
    window.show();
    return arguments.contains("--self-check") ? selfCheck(&window) : application.exec();
}
