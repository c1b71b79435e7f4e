#include "UnsavedEdits.h"

#include "PlainMessageBox.h"
#include "drivers/PageStack.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHash>
#include <QKeyEvent>
#include <QListWidget>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UnsavedEdits)
};

/// Its choice is made at once, see EnvironmentNotice.
const QLatin1String environments("environmentComboBox");

const QDialogButtonBox* buttonsOf(const QDialog& dialog)
{
    const QList<QDialogButtonBox*> boxes = dialog.findChildren<QDialogButtonBox*>();
    for (const QDialogButtonBox* box : boxes) {
        if (box->window() == &dialog && box->button(QDialogButtonBox::Cancel))
            return box;
    }
    return nullptr;
}

/// What its user enters. To look for it in all classes of all widgets takes longer than all else here.
QMetaProperty userPropertyOf(const QWidget& widget)
{
    static QHash<const QMetaObject*, QMetaProperty> known;
    const QMetaObject* type = widget.metaObject();
    const auto found = known.constFind(type);
    return found != known.constEnd() ? *found : *known.insert(type, type->userProperty());
}

bool isField(const QWidget& widget, const QDialog& dialog)
{
    return userPropertyOf(widget).isValid() && widget.window() == &dialog && !widget.objectName().isEmpty() &&
           widget.objectName() != environments && !qobject_cast<const QPushButton*>(&widget) &&
           !qobject_cast<const QToolButton*>(&widget);
}

QVariant itemsOf(const QListWidget& list)
{
    QStringList items;
    for (int row = 0; row < list.count(); ++row)
        items.append(list.item(row)->text());
    return items;
}

/// Not the text of a choice, which follows the language.
QVariant valueOf(const QWidget& field)
{
    if (const auto* list = qobject_cast<const QListWidget*>(&field))
        return itemsOf(*list);
    const auto* choice = qobject_cast<const QComboBox*>(&field);
    return choice && !choice->isEditable() ? QVariant(choice->currentIndex())
                                           : userPropertyOf(field).read(&field);
}

QString placeOf(const QWidget& field, const QDialog& dialog)
{
    QString place = field.objectName();
    for (const QWidget* box = field.parentWidget(); box && box != &dialog; box = box->parentWidget())
        place.prepend(box->objectName() + QLatin1Char('/'));
    return place;
}

bool agreesToDiscard(QDialog& dialog)
{
    PlainMessageBox box(QMessageBox::Question, dialog.windowTitle(),
                        Texts::tr("What you have entered is not stored yet."), QMessageBox::NoButton,
                        &dialog);
    box.setObjectName(QStringLiteral("unsavedEditsBox"));
    const QPushButton* discard = box.addButton(Texts::tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* back = box.addButton(Texts::tr("&Go On Editing"), QMessageBox::RejectRole);
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(discard);
}

/// By its user. Qt 6 also closes a dialog that was accepted, or cancelled by its button.
bool wouldClose(const QEvent& event)
{
    return (event.type() == QEvent::Close && event.spontaneous()) ||
           (event.type() == QEvent::KeyPress &&
            static_cast<const QKeyEvent&>(event).matches(QKeySequence::Cancel));
}

} // namespace

UnsavedEdits::UnsavedEdits(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// Fields of one name are told apart by where they are.
UnsavedEdits::Values UnsavedEdits::valuesOf(const QDialog& dialog)
{
    Values values;
    const QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (isField(*widget, dialog))
            values.insert(placeOf(*widget, dialog), valueOf(*widget));
    }
    return values;
}

void UnsavedEdits::begin(QDialog& dialog)
{
    const QDialogButtonBox* buttons = buttonsOf(dialog);
    if (!buttons || m_stored.contains(&dialog) || qobject_cast<QFileDialog*>(&dialog))
        return;
    const QObject* key = &dialog;
    m_stored.insert(key, valuesOf(dialog));
    connect(&dialog, &QObject::destroyed, this, [this, key] { m_stored.remove(key); });
    if (QPushButton* apply = buttons->button(QDialogButtonBox::Apply))
        beginApplying(dialog, *apply);
    if (const auto* pages = dialog.findChild<PageStack*>())
        follow(dialog, *pages);
}

/// What others store while the dialog is open comes into it, and was not entered there.
void UnsavedEdits::follow(QDialog& dialog, const PageStack& pages)
{
    const auto before = std::make_shared<Values>();
    connect(&pages, &PageStack::aboutToRefresh, this, [before, &dialog] { *before = valuesOf(dialog); });
    connect(&pages, &PageStack::refreshed, this, [this, before, &dialog] {
        Values& stored = m_stored[&dialog];
        const Values now = valuesOf(dialog);
        for (auto field = now.cbegin(); field != now.cend(); ++field) {
            if (field.value() != before->value(field.key()))
                stored.insert(field.key(), field.value());
        }
        if (buttonsOf(dialog)->button(QDialogButtonBox::Apply))
            enableApply(dialog, isTouched(dialog));
    });
}

void UnsavedEdits::beginApplying(QDialog& dialog, QPushButton& apply)
{
    const QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (isField(*widget, dialog))
            watch(*widget);
    }
    connect(&apply, &QPushButton::clicked, this, [this, &dialog] {
        applied(dialog);
        // And as the form writes it once it has seen what was stored.
        QTimer::singleShot(0, &dialog, [this, &dialog] { applied(dialog); });
    });
    enableApply(dialog, false);
}

void UnsavedEdits::watch(QWidget& field)
{
    const QMetaMethod changed = userPropertyOf(field).notifySignal();
    connect(&field, changed, this, metaObject()->method(metaObject()->indexOfSlot("fieldChanged()")));
    if (qobject_cast<const QComboBox*>(&field)) // of which two entries may have one text
        connect(&field, SIGNAL(currentIndexChanged(int)), this, SLOT(fieldChanged()));
    if (const auto* list = qobject_cast<const QListWidget*>(&field)) {
        const auto tell = [this, window = qobject_cast<QDialog*>(field.window())] {
            enableApply(*window, isTouched(*window));
        };
        connect(list->model(), &QAbstractItemModel::rowsInserted, &field, tell);
        connect(list->model(), &QAbstractItemModel::rowsRemoved, &field, tell);
    }
}

void UnsavedEdits::fieldChanged()
{
    if (const auto* dialog = qobject_cast<const QDialog*>(static_cast<QWidget*>(sender())->window()))
        enableApply(*dialog, isTouched(*dialog));
}

void UnsavedEdits::applied(QDialog& dialog)
{
    m_stored.insert(&dialog, valuesOf(dialog));
    enableApply(dialog, false);
}

/// Where OK is refused, by a field that says why, there is nothing to apply either.
void UnsavedEdits::enableApply(const QDialog& dialog, bool touched)
{
    const QDialogButtonBox* buttons = buttonsOf(dialog);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    QPushButton* apply = buttons->button(QDialogButtonBox::Apply);
    const bool canApply = ok->isEnabled() && touched;
    if (!canApply && dialog.focusWidget() == apply)
        ok->setFocus(); // the toolkit would hand it to the first field of the window
    apply->setEnabled(canApply);
}

bool UnsavedEdits::isTouched(const QDialog& dialog) const
{
    const Values stored = m_stored.value(&dialog);
    const Values now = valuesOf(dialog);
    for (auto field = now.cbegin(); field != now.cend(); ++field) {
        if (field.value() != stored.value(field.key(), field.value()))
            return true;
    }
    return false;
}

bool UnsavedEdits::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show && !wouldClose(*event))
        return QObject::eventFilter(watched, event);
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show)
        begin(*dialog);
    if (!dialog || event->type() == QEvent::Show || m_isAsking || !dialog->isVisible() ||
        !m_stored.contains(dialog) || !isTouched(*dialog))
        return QObject::eventFilter(watched, event);
    const QScopedValueRollback<bool> asking(m_isAsking, true);
    if (agreesToDiscard(*dialog))
        return QObject::eventFilter(watched, event);
    event->ignore(); // a window that is to be closed asks so whether it may
    return true;
}

} // namespace ko
