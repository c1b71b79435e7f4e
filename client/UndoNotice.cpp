#include "UndoNotice.h"

#include "UndoCommands.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QStatusBar>

namespace ko {

namespace {

const int messageTime = 20000; // ms

} // namespace

UndoNotice::UndoNotice(UndoCommands& undoing, QAction* undo, QStatusBar* statusBar)
    : QPushButton(statusBar)
    , m_undoing(undoing)
    , m_statusBar(statusBar)
{
    setObjectName(QStringLiteral("undoButton"));
    hide();
    statusBar->addPermanentWidget(this);
    connect(this, &QPushButton::clicked, undo, &QAction::trigger);
    connect(statusBar, &QStatusBar::messageChanged, this,
            [this](const QString& text) { setVisible(!text.isEmpty() && text == m_text); });
    connect(&undoing, &UndoCommands::stepsChanged, this, [this] {
        if (!isHidden() && m_undoing.storedStep() != m_step)
            m_statusBar->clearMessage();
    });
    setTranslated(this, [this] { setText(tr("Undo...")); });
}

void UndoNotice::offer(const QString& text)
{
    m_step = m_undoing.lastStep();
    m_text = text;
    m_statusBar->showMessage(text, messageTime);
}

} // namespace ko
