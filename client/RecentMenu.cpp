#include "RecentMenu.h"

#include "DatabaseCommands.h"
#include "MainWindow.h"
#include "MnemonicText.h"
#include "database/HostNodeDB.h"
#include "utils/Retranslation.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

namespace ko {

RecentMenu::RecentMenu(MainWindow& window)
    : QMenu(&window)
    , m_window(window)
{
    setObjectName(QStringLiteral("recentMenu"));
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    setTranslated(this, [this] { setTitle(tr("Open &Recent")); });
}

void RecentMenu::fill()
{
    clear();
    const QString own = QFileInfo(m_window.database().fileName()).absoluteFilePath();
    const QStringList files = DatabaseCommands::recent();
    for (const QString& file : files) {
        if (file == own)
            continue;
        QAction* action = addAction(MnemonicText::literal(QDir::toNativeSeparators(file)));
        // When the menu is closed: its window goes.
        connect(action, &QAction::triggered, &m_window, [window = &m_window, file] {
            QTimer::singleShot(0, window, [window, file] { window->openInstead(file); });
        });
    }
    if (actions().isEmpty())
        addAction(tr("No other database was opened yet"))->setEnabled(false);
}

} // namespace ko
