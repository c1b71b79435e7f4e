#include "drivers/PageFields.h"

#include "utils/Fields.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

namespace ko {

namespace PageFields {

namespace {

bool isEditor(const QWidget* widget)
{
    // Spin boxes and editable combo boxes have line edits inside, which are not fields of their own.
    if (qobject_cast<const QLineEdit*>(widget))
        return !qobject_cast<const QAbstractSpinBox*>(widget->parent()) &&
               !qobject_cast<const QComboBox*>(widget->parent());
    const QAbstractButton* button = qobject_cast<const QAbstractButton*>(widget);
    return (button && button->isCheckable()) || qobject_cast<const QSpinBox*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QListWidget*>(widget);
}

} // namespace

QList<QWidget*> of(const QWidget* page)
{
    QList<QWidget*> found;
    const QList<QWidget*> widgets = page->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->objectName().isEmpty() && isEditor(widget))
            found.append(widget);
    }
    return found;
}

QStringList ofOneNode()
{
    return {QStringLiteral("nameLineEdit"), QStringLiteral("addressLineEdit"), QStringLiteral("macLineEdit"),
            QStringLiteral("factoryIPLineEdit")};
}

QStringList itemTexts(const QListWidget* list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

QVariant value(const QWidget* editor)
{
    if (const auto* comboBox = qobject_cast<const QComboBox*>(editor))
        return comboBox->currentData().isValid() ? comboBox->currentData() : comboBox->currentIndex();
    const auto* list = qobject_cast<const QListWidget*>(editor);
    return list ? itemTexts(list) : fieldValue(editor);
}

} // namespace PageFields

} // namespace ko
