#include "EntryQuestions.h"

#include "PlainMessageBox.h"
#include "dialogs/AddNodeDialog.h"
#include "drivers/FormTwin.h"
#include "ko/Node.h"
#include "ko/OutsideText.h"
#include "utils/Fields.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EntryQuestions)
};

} // namespace

EntryQuestions::EntryQuestions(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool EntryQuestions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        auto* dialog = qobject_cast<NodeDialog*>(watched);
        if (dialog && !m_stored.contains(dialog))
            begin(*dialog);
    }
    return QObject::eventFilter(watched, event);
}

void EntryQuestions::begin(NodeDialog& dialog)
{
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    if (!buttons || !buttons->button(QDialogButtonBox::Cancel))
        return; // it only shows
    const QObject* key = &dialog;
    // Whether it has a twin is not looked for, which takes the keys of all nodes the first time.
    m_stored.insert(key, qobject_cast<AddNodeDialog*>(&dialog)
                             ? Beginning()
                             : Beginning{doubtsOfName(dialog), targetOf(dialog)});
    connect(&dialog, &QObject::destroyed, this, [this, key] { m_stored.remove(key); });
    // Which the box tells before it accepts.
    connect(buttons, &QDialogButtonBox::clicked, this,
            [this, &dialog, buttons](const QAbstractButton* button) {
                if (button == static_cast<const QAbstractButton*>(buttons->button(QDialogButtonBox::Ok)))
                    confirm(dialog, *buttons);
            });
}

void EntryQuestions::confirm(NodeDialog& dialog, QDialogButtonBox& buttons) const
{
    Doubts doubts = doubtsOfName(dialog);
    const Beginning stored = m_stored.value(&dialog);
    for (const Doubt& doubt : stored.doubts)
        doubts.removeAll(doubt);
    if (targetOf(dialog) != stored.target)
        doubts += doubtsOfTarget(dialog);
    if (doubts.isEmpty() || agrees(doubts, dialog))
        return;
    buttons.blockSignals(true); // so that it accepts nothing this time
    QTimer::singleShot(0, &buttons, [&buttons] { buttons.blockSignals(false); });
    doubts.constFirst().field->setFocus(Qt::OtherFocusReason);
}

/// By what devices are told apart.
QStringList EntryQuestions::targetOf(const NodeDialog& dialog)
{
    QStringList target;
    for (const char* field : {"addressLineEdit", "portSpinBox", "channelSpinBox"}) {
        const auto* found = dialog.findChild<QWidget*>(QLatin1String(field));
        target.append(found ? fieldValue(found).toString().trimmed() : QString());
    }
    return target;
}

EntryQuestions::Doubts EntryQuestions::doubtsOfName(const NodeDialog& dialog)
{
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("nameLineEdit"));
    if (!name || !name->text().trimmed().isEmpty())
        return {};
    const bool lacksAddress = dialog.findChild<QLineEdit*>(QStringLiteral("addressLineEdit")) &&
                              targetOf(dialog).constFirst().isEmpty();
    return {{lacksAddress ? Texts::tr("Neither a name nor an address was entered.")
                          : Texts::tr("No name was entered."),
             name}};
}

EntryQuestions::Doubts EntryQuestions::doubtsOfTarget(const NodeDialog& dialog)
{
    auto* address = dialog.findChild<QLineEdit*>(QStringLiteral("addressLineEdit"));
    const kom::smart<const Node> twin =
        targetOf(dialog).constFirst().isEmpty() ? kom::smart<const Node>() : twinInForm(dialog);
    if (twin.null())
        return {};
    return {{Texts::tr("\"%1\" has this address, port and channel already.")
                 .arg(OutsideText::visible(twin->name())),
             address}};
}

bool EntryQuestions::agrees(const Doubts& doubts, NodeDialog& dialog)
{
    QString text;
    for (const Doubt& doubt : doubts)
        text += doubt.text + QLatin1Char('\n');
    PlainMessageBox box(QMessageBox::Question, dialog.windowTitle(),
                        text + QLatin1Char('\n') + Texts::tr("Store it anyway?"), QMessageBox::NoButton,
                        &dialog);
    box.setObjectName(QStringLiteral("entryQuestionBox"));
    const QPushButton* store = box.addButton(Texts::tr("&Store Anyway"), QMessageBox::AcceptRole);
    QPushButton* back = box.addButton(Texts::tr("&Go On Editing"), QMessageBox::RejectRole);
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(store);
}

} // namespace ko
