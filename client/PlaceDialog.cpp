#include "PlaceDialog.h"

#include "Places.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace ko {

namespace {

/// Nothing if it is as it was, or still empty where the devices differ.
std::optional<QString> entered(const QString& text, const std::optional<QString>& common)
{
    return text == common.value_or(QString()) ? std::nullopt : std::make_optional(text);
}

} // namespace

PlaceDialog::PlaceDialog(int devices, const QStringList& places, QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_devices(devices)
    , m_text(new QLabel(this))
    , m_location(new QComboBox(this))
    , m_tags(new QLineEdit(this))
    , m_locationLabel(new QLabel(this))
    , m_tagsLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("PlaceDialog"));
    m_text->setWordWrap(true);
    m_location->setObjectName(QStringLiteral("locationComboBox"));
    m_location->setEditable(true);
    m_location->setInsertPolicy(QComboBox::NoInsert);
    m_location->addItems(places);
    m_tags->setObjectName(QStringLiteral("tagsLineEdit"));
    m_tags->setMinimumWidth(320);
    m_locationLabel->setBuddy(m_location);
    m_tagsLabel->setBuddy(m_tags);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addWidget(m_text);
    layout->addLayout(form);
    layout->addWidget(buttons);
    form->addRow(m_locationLabel, m_location);
    form->addRow(m_tagsLabel, m_tags);
    setValues({});
    setTranslated(this, [this] { retranslate(); });
}

void PlaceDialog::retranslate()
{
    setWindowTitle(tr("Location and Tags"));
    m_text->setText(tr("Where are the %n selected device(s)? Write it from outside to inside, with a slash "
                       "between: Site/Building/Floor. Separate tags with commas.",
                       nullptr, m_devices));
    m_locationLabel->setText(tr("&Location:"));
    m_tagsLabel->setText(tr("&Tags:"));
    const QString different = tr("(different, left as they are)");
    m_location->lineEdit()->setPlaceholderText(m_common.location ? QString() : different);
    m_tags->setPlaceholderText(m_common.tags ? QString() : different);
}

void PlaceDialog::setValues(const PlaceCommands::Values& values)
{
    m_common = values;
    m_location->setEditText(values.location.value_or(QString()));
    m_tags->setText(values.tags.value_or(QString()));
    m_location->lineEdit()->selectAll();
    retranslate();
}

PlaceCommands::Values PlaceDialog::values() const
{
    std::optional<QString> location = entered(m_location->currentText(), m_common.location);
    if (location)
        location = Places::normalized(*location);
    return {location, entered(m_tags->text().simplified(), m_common.tags)};
}

} // namespace ko
