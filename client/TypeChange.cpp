#include "TypeChange.h"

#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QSpinBox>

namespace ko {

namespace {

const QLatin1String nameField("nameLineEdit");
const QLatin1String addressField("addressLineEdit");

} // namespace

TypeChange::TypeChange(QDialog* dialog)
    : QObject(dialog)
    , m_types(dialog->findChild<QComboBox*>(QStringLiteral("nodeTypeComboBox")))
    , m_form(dialog->findChild<QWidget*>(QStringLiteral("containerWidget")))
    , m_fresh(FormFields::values(m_form))
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

void TypeChange::remember()
{
    const FormFields::Values now = FormFields::values(m_form);
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
    m_fresh = FormFields::values(m_form);
    const QList<QWidget*> all = FormFields::in(m_form);
    for (QWidget* field : all) {
        const QString name = field->objectName();
        if (m_entered.contains(name) || qobject_cast<QSpinBox*>(field))
            FormFields::enter(field, m_entered.value(name, m_fresh.value(name)));
    }
}

} // namespace ko
