#include "drivers/PropertyFormPage.h"

#include "drivers/FormLayout.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "utils/Fields.h"
#include "utils/FileDialogs.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace ko {

namespace {

void setCaption(QLabel* label, const char* caption)
{
    setTranslated(label, [label, caption] { label->setText(PropertyFormPage::tr(caption)); });
}

} // namespace

PropertyFormPage::PropertyFormPage(const QVector<Field>& fields, QWidget* parent)
    : QWidget(parent)
    , m_fields(fields)
{
    FormLayout layout(this);
    for (const Field& field : m_fields) {
        if (field.kind == Field::Flag) {
            QCheckBox* checkBox = new QCheckBox(this);
            setTranslated(checkBox, [checkBox, text = field.caption] { checkBox->setText(tr(text)); });
            checkBox->setObjectName(field.key);
            layout.addRow(checkBox);
            continue;
        }
        if (field.kind == Field::Port) {
            QSpinBox* spinBox = new QSpinBox(this);
            spinBox->setObjectName(field.key);
            spinBox->setRange(0, 65535);
            setCaption(layout.addRow(QString(), spinBox), field.caption);
            continue;
        }
        QLineEdit* lineEdit = new QLineEdit(this);
        lineEdit->setObjectName(field.key);
        if (field.kind == Field::Password)
            lineEdit->setEchoMode(QLineEdit::Password);
        QPushButton* browse = nullptr;
        if (field.kind == Field::Folder) {
            browse = new QPushButton(this);
            setTranslated(browse, [browse] { browse->setText(tr("Browse...")); });
            connect(browse, &QPushButton::clicked, this, [this, key = field.key] { chooseFolder(key); });
        }
        setCaption(layout.addRow(QString(), lineEdit, browse), field.caption);
    }
}

void PropertyFormPage::init(const QString& nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (!node.null())
        load(*node);
}

void PropertyFormPage::init(const NodeHint* hint)
{
    load(*hint);
}

void PropertyFormPage::accept(Node* node)
{
    if (node)
        store(*node);
}

void PropertyFormPage::accept(NodeHint* hint)
{
    store(*hint);
}

void PropertyFormPage::setReadOnly(bool readOnly)
{
    const QList<QWidget*> children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (!qobject_cast<QLabel*>(child))
            setFieldReadOnly(child, readOnly);
    }
}

void PropertyFormPage::load(const PropertyAccess& properties)
{
    for (const Field& field : m_fields)
        loadField(properties, field.key, findChild<QWidget*>(field.key));
}

void PropertyFormPage::store(PropertyAccess& properties) const
{
    for (const Field& field : m_fields)
        storeField(properties, field.key, findChild<QWidget*>(field.key));
}

void PropertyFormPage::chooseFolder(const QString& key)
{
    QLineEdit* lineEdit = findChild<QLineEdit*>(key);
    const QString folder = FileDialogs::existingFolder(this, tr("Select Folder"), lineEdit->text());
    if (!folder.isEmpty())
        lineEdit->setText(folder);
}

} // namespace ko
