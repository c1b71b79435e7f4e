#include "UndoCommands.h"

#include "MainWindow.h"
#include "MnemonicText.h"
#include "PutBackDialog.h"
#include "ReadAlterations.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"

#include <QAction>
#include <QTimer>

namespace ko {

namespace {

const int longest = 60; ///< signs of a title in a menu

/// For a menu, where "&" would be a letter for the keyboard.
QString inMenu(const QString& title)
{
    QString text = OutsideText::visible(title);
    if (text.size() > longest)
        text = text.left(longest) + QChar(0x2026);
    return MnemonicText::literal(text);
}

} // namespace

UndoCommands::UndoCommands(MainWindow& window, QAction* undo, QAction* redo)
    : QObject(&window)
    , m_window(window)
    , m_stack(window.database())
    , m_undo(undo)
    , m_redo(redo)
{
    connect(&m_stack, &UndoStack::changed, this, [this] {
        emit stepsChanged();
        if (!m_isLate)
            QTimer::singleShot(0, this, &UndoCommands::update);
        m_isLate = true;
    });
    retranslate();
}

qint64 UndoCommands::lastStep()
{
    m_window.database().flush(StoreWait::InEventLoop);
    return storedStep();
}

void UndoCommands::update()
{
    m_isLate = false;
    retranslate();
}

void UndoCommands::retranslate()
{
    m_undo->setEnabled(!m_stack.isEmpty(UndoStack::Undo));
    m_redo->setEnabled(!m_stack.isEmpty(UndoStack::Redo));
    m_undo->setText(m_undo->isEnabled() ? tr("&Undo \"%1\"").arg(inMenu(m_stack.title(UndoStack::Undo)))
                                        : tr("&Undo"));
    m_redo->setText(m_redo->isEnabled() ? tr("&Redo \"%1\"").arg(inMenu(m_stack.title(UndoStack::Redo)))
                                        : tr("&Redo"));
}

void UndoCommands::run(UndoStack::Direction direction)
{
    HostNodeDB& db = m_window.database();
    db.flush(StoreWait::InEventLoop); // what waits is undone first, and nothing is redone after it
    const std::optional<ChangeSetRow> row = m_stack.next(direction);
    const std::optional<ChangeSetRow> newest = db.history().row(m_stack.newest(direction));
    if (!row || !newest)
        return; // there is none any more, or it cannot be read, which is said by itself
    const auto alterations = readAlterations(db, {*newest}, &m_window);
    const auto shown = alterations ? PuttingBack::preview(db, *alterations) : std::nullopt;
    if (!shown)
        return;
    PutBackDialog dialog(
        [&row] { return ChangeSetTitle::of(*row); }, *shown, PutBackDialog::words(db),
        [this, direction](const PutBack& putBack) { return m_stack.apply(direction, putBack); }, &m_window);
    const bool isDone = dialog.exec() == QDialog::Accepted;
    if (isDone) {
        m_window.applyChanges();
        m_window.say((direction == UndoStack::Undo ? tr("Undone: %1") : tr("Redone: %1"))
                         .arg(OutsideText::visible(ChangeSetTitle::of(*row))));
    } else if (!dialog.isPossible()) {
        m_stack.dropIfLost(direction, *shown); // else it would be in the way of what was done before
    }
}

} // namespace ko
