#include "TypeChange.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>

namespace ko {

namespace {

const QLatin1String nameField("nameLineEdit");
const QLatin1String addressField("addressLineEdit");

QVariant valueOf(const QWidget* field)
{
    if (const auto* text = qobject_cast<const QLineEdit*>(field))
        return text->text();
    if (const auto* number = qobject_cast<const QSpinBox*>(field))
        return number->value();
    return qobject_cast<const QCheckBox*>(field)->isChecked();
}

void enter(QWidget* field, const QVariant& value)
{
    if (auto* text = qobject_cast<QLineEdit*>(field)) {
        text->selectAll();
        text->insert(value.toString()); // as if it were typed, so that the editor does not replace it
    } else if (auto* number = qobject_cast<QSpinBox*>(field)) {
        number->setValue(value.toInt());
    } else {
        qobject_cast<QCheckBox*>(field)->setChecked(value.toBool());
    }
}

} // namespace

TypeChange::TypeChange(QDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_types(dialog->findChild<QComboBox*>(QStringLiteral("nodeTypeComboBox")))
    , m_fresh(values())
{
    m_types->installEventFilter(this);
    // After the dialog, which is connected already and has made the new editor.
    connect(m_types, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TypeChange::restore);
}

bool TypeChange::eventFilter(QObject* watched, QEvent* event)
{
    // All ways to another type begin with one of these.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::KeyPress ||
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel)
        remember();
    return QObject::eventFilter(watched, event);
}

/// Check boxes first: one may move the number of a port, which then is set to what was entered.
QList<QWidget*> TypeChange::fields() const
{
    QList<QWidget*> found;
    const auto* container = m_dialog->findChild<QWidget*>(QStringLiteral("containerWidget"));
    for (QCheckBox* field : container->findChildren<QCheckBox*>())
        found.append(field);
    for (QSpinBox* field : container->findChildren<QSpinBox*>())
        found.append(field);
    for (QLineEdit* field : container->findChildren<QLineEdit*>()) {
        if (!qobject_cast<QAbstractSpinBox*>(field->parentWidget()) && !field->isReadOnly())
            found.append(field);
    }
    return found;
}

TypeChange::Values TypeChange::values() const
{
    Values values;
    const QList<QWidget*> all = fields();
    for (const QWidget* field : all)
        values.insert(field->objectName(), valueOf(field));
    return values;
}

void TypeChange::remember()
{
    const Values now = values();
    for (auto field = now.cbegin(); field != now.cend(); ++field) {
        const bool isProposal = field.key() == nameField && field.value() == now.value(addressField);
        if (field.value() != m_fresh.value(field.key()) && !isProposal)
            m_entered.insert(field.key(), field.value());
        else
            m_entered.remove(field.key());
    }
}

void TypeChange::restore()
{
    m_fresh = values();
    const QList<QWidget*> all = fields();
    for (QWidget* field : all) {
        const QString name = field->objectName();
        if (m_entered.contains(name) || qobject_cast<QSpinBox*>(field))
            enter(field, m_entered.value(name, m_fresh.value(name)));
    }
}

} // namespace ko
