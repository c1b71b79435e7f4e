#include "Mnemonics.h"

#include "MnemonicText.h"
#include "WindowSize.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace ko {

namespace {

const char given[] = "ko_mnemonic"; ///< property of the controls that have theirs from here

/// A text that may hold a letter for the keyboard.
struct Caption
{
    QObject* owner;
    QString text;
    std::function<void(const QString&)> set;

    QString letter() const { return QKeySequence::mnemonic(text).toString(); }
};

bool hasKeyAlready(const QAbstractButton* button)
{
    const auto* box = qobject_cast<const QDialogButtonBox*>(button->parentWidget());
    const auto which =
        box ? box->standardButton(const_cast<QAbstractButton*>(button)) : QDialogButtonBox::NoButton;
    return which == QDialogButtonBox::Ok || which == QDialogButtonBox::Cancel ||
           which == QDialogButtonBox::Close;
}

void addCaptions(QWidget* widget, QVector<Caption>* captions)
{
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        if (label->buddy() && label->textFormat() != Qt::RichText)
            captions->append({label, label->text(), [label](const QString& text) { label->setText(text); }});
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        if (!qobject_cast<QToolButton*>(button) && !hasKeyAlready(button))
            captions->append(
                {button, button->text(), [button](const QString& text) { button->setText(text); }});
    } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
        if (group->isCheckable())
            captions->append(
                {group, group->title(), [group](const QString& text) { group->setTitle(text); }});
    } else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            captions->append(
                {tabs, tabs->tabText(i), [tabs, i](const QString& text) { tabs->setTabText(i, text); }});
    }
}

QVector<Caption> captionsInSight(const QWidget* window)
{
    QVector<Caption> captions;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->isVisible() && widget->window() == window)
            addCaptions(widget, &captions);
    }
    return captions;
}

QStringList lettersOfMenus(const QWidget* window)
{
    QStringList letters;
    const QList<QMenuBar*> bars = window->findChildren<QMenuBar*>();
    for (const QMenuBar* bar : bars) {
        const QList<QAction*> actions = bar->actions();
        for (const QAction* action : actions)
            letters.append(QKeySequence::mnemonic(action->text()).toString());
    }
    return letters;
}

/// A dialog that had its size before its captions got longer.
void widen(QWidget* dialog, const QVector<Caption>& captions)
{
    // A layout hears of what is in its boxes only when theirs are done, and of tabs that can be scrolled not
    // at all.
    int hiddenTabs = 0;
    for (const Caption& caption : captions) {
        auto* widget = qobject_cast<QWidget*>(caption.owner);
        if (qobject_cast<QTabBar*>(widget))
            hiddenTabs = std::max(hiddenTabs, widget->sizeHint().width() - widget->parentWidget()->width());
        while (widget && widget != dialog) {
            widget = widget->parentWidget();
            if (widget->layout())
                widget->layout()->activate();
        }
    }
    const int wanted = std::max(dialog->width() + hiddenTabs, dialog->sizeHint().width());
    resizeWithinScreen(*dialog, QSize(wanted, dialog->height()));
}

void assignIn(QWidget* window)
{
    QVector<Caption> captions = captionsInSight(window);
    // Letters that somebody chose stay; then short texts, which have not many to choose from.
    const auto isOurs = [](const Caption& caption) {
        return caption.letter().isEmpty() || caption.owner->property(given).toBool();
    };
    std::stable_sort(captions.begin(), captions.end(), [&isOurs](const Caption& a, const Caption& b) {
        return std::make_pair(isOurs(a), a.text.size()) < std::make_pair(isOurs(b), b.text.size());
    });
    QStringList used = lettersOfMenus(window);
    bool isLonger = false;
    for (Caption& caption : captions) {
        const bool isFree = !caption.letter().isEmpty() && !used.contains(caption.letter());
        if (isOurs(caption) && !isFree) {
            const QString text = MnemonicText::with(MnemonicText::without(caption.text), used);
            if (text != caption.text)
                caption.set(text);
            isLonger = isLonger || text.size() > caption.text.size() + 1; // by brackets
            caption.text = text;
            caption.owner->setProperty(given, true);
        }
        used.append(caption.letter());
    }
    if (isLonger && qobject_cast<QDialog*>(window))
        widen(window, captions);
}

} // namespace

Mnemonics::Mnemonics(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool Mnemonics::eventFilter(QObject* watched, QEvent* event)
{
    // A caption that gets another text has its place computed anew.
    const bool mayNeedLetters = event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest;
    auto* widget = mayNeedLetters ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget && !m_windows.contains(widget->window())) {
        if (m_windows.isEmpty())
            QTimer::singleShot(0, this, &Mnemonics::assign);
        m_windows.append(widget->window());
    }
    return QObject::eventFilter(watched, event);
}

void Mnemonics::assign()
{
    const QVector<QPointer<QWidget>> windows = m_windows;
    m_windows.clear();
    for (const QPointer<QWidget>& window : windows) {
        if (window)
            assignIn(window);
    }
}

} // namespace ko
