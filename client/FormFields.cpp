#include "FormFields.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>

namespace ko {

namespace FormFields {

namespace {

QVariant valueOf(const QWidget* field)
{
    if (const auto* text = qobject_cast<const QLineEdit*>(field))
        return text->text();
    if (const auto* number = qobject_cast<const QSpinBox*>(field))
        return number->value();
    return qobject_cast<const QCheckBox*>(field)->isChecked();
}

} // namespace

QList<QWidget*> in(const QWidget* form)
{
    QList<QWidget*> found;
    const QList<QCheckBox*> boxes = form->findChildren<QCheckBox*>();
    for (QCheckBox* field : boxes)
        found.append(field);
    const QList<QSpinBox*> numbers = form->findChildren<QSpinBox*>();
    for (QSpinBox* field : numbers)
        found.append(field);
    const QList<QLineEdit*> texts = form->findChildren<QLineEdit*>();
    for (QLineEdit* field : texts) {
        if (!qobject_cast<QAbstractSpinBox*>(field->parentWidget()) && !field->isReadOnly())
            found.append(field);
    }
    return found;
}

Values values(const QWidget* form)
{
    Values values;
    const QList<QWidget*> fields = in(form);
    for (const QWidget* field : fields)
        values.insert(field->objectName(), valueOf(field));
    return values;
}

void enter(QWidget* field, const QVariant& value)
{
    if (auto* text = qobject_cast<QLineEdit*>(field)) {
        text->selectAll();
        text->insert(value.toString());
    } else if (auto* number = qobject_cast<QSpinBox*>(field)) {
        number->setValue(value.toInt());
    } else {
        qobject_cast<QCheckBox*>(field)->setChecked(value.toBool());
    }
}

} // namespace FormFields

} // namespace ko
