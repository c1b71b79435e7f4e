#include "UndoNotice.h"

#include "utils/Retranslation.h"

#include <QAction>
#include <QStatusBar>

namespace ko {

namespace {

const int messageTime = 20000; // ms

} // namespace

UndoNotice::UndoNotice(QAction* undo, QStatusBar* statusBar)
    : QPushButton(statusBar)
    , m_statusBar(statusBar)
{
    setObjectName(QStringLiteral("undoButton"));
    hide();
    statusBar->addPermanentWidget(this);
    connect(this, &QPushButton::clicked, undo, &QAction::trigger);
    connect(statusBar, &QStatusBar::messageChanged, this,
            [this](const QString& text) { setVisible(!text.isEmpty() && text == m_text); });
    setTranslated(this, [this] { setText(tr("Undo...")); });
}

void UndoNotice::offer(const QString& text)
{
    m_text = text;
    m_statusBar->showMessage(text, messageTime);
}

} // namespace ko
