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

/// \a from is not used any more afterwards.
void takeItems(QComboBox* to, QComboBox* from)
{
    const int current = from->currentIndex();
    from->model()->setParent(to);
    to->setModel(from->model()); // deletes the old one
    to->setCurrentIndex(current);
}

void setValue(QWidget* editor, QWidget* fresh)
{
    if (auto* comboBox = qobject_cast<QComboBox*>(editor)) {
        takeItems(comboBox, qobject_cast<QComboBox*>(fresh));
    } else if (auto* list = qobject_cast<QListWidget*>(editor)) {
        list->clear();
        list->addItems(itemTexts(qobject_cast<QListWidget*>(fresh)));
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

void EditorState::refresh(QWidget* page, QWidget* fresh)
{
    // Told apart before anything is set: one field's new value may move another's.
    QList<QPair<QWidget*, QWidget*>> untouched;
    const QList<QWidget*> found = editors(page);
    for (QWidget* editor : found) {
        QWidget* source = fresh->findChild<QWidget*>(editor->objectName());
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
