#include "drivers/EditorState.h"

#include "utils/Fields.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

namespace ko {

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

QList<QWidget*> editors(const QWidget* page)
{
    QList<QWidget*> found;
    const QList<QWidget*> widgets = page->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->objectName().isEmpty() && isEditor(widget))
            found.append(widget);
    }
    return found;
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

void copyItems(QComboBox* to, const QComboBox* from)
{
    to->clear();
    for (int i = 0; i < from->count(); ++i)
        to->addItem(from->itemIcon(i), from->itemText(i), from->itemData(i));
}

void setValue(QWidget* editor, const QWidget* fresh)
{
    if (auto* comboBox = qobject_cast<QComboBox*>(editor)) {
        const auto* source = qobject_cast<const QComboBox*>(fresh);
        copyItems(comboBox, source);
        comboBox->setCurrentIndex(source->currentIndex());
    } else if (auto* list = qobject_cast<QListWidget*>(editor)) {
        list->clear();
        list->addItems(itemTexts(qobject_cast<const QListWidget*>(fresh)));
    } else {
        setField(editor, fieldValue(fresh));
    }
}

/// Labels show and are not typed into, so they always follow.
void copyLabels(const QWidget* page, const QWidget* fresh)
{
    const QList<QLabel*> labels = page->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        const QLabel* source =
            label->objectName().isEmpty() ? nullptr : fresh->findChild<const QLabel*>(label->objectName());
        if (source && source->text() != label->text())
            label->setText(source->text());
    }
}

} // namespace

void EditorState::capture(const QWidget* page)
{
    m_values.clear();
    const QList<QWidget*> found = editors(page);
    for (const QWidget* editor : found)
        m_values.insert(editor, value(editor));
}

void EditorState::refresh(QWidget* page, const QWidget* fresh)
{
    // Told apart before anything is set: one field's new value may move another's.
    QList<QPair<QWidget*, const QWidget*>> untouched;
    const QList<QWidget*> found = editors(page);
    for (QWidget* editor : found) {
        const QWidget* source = fresh->findChild<QWidget*>(editor->objectName());
        if (!source)
            continue;
        if (value(editor) == m_values.value(editor))
            untouched.append(qMakePair(editor, source));
        m_values.insert(editor, value(source));
    }
    for (const auto& pair : untouched) {
        if (value(pair.first) != value(pair.second))
            setValue(pair.first, pair.second);
    }
    copyLabels(page, fresh);
}

} // namespace ko
