#include "drivers/AddressGuard.h"

#include "drivers/AddressText.h"
#include "ko/OutsideText.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSpinBox>

#include <utility>

namespace ko {

AddressGuard::AddressGuard(const Fields& fields, TwinName twinName, QWidget* parent)
    : FieldGuard(fields.address, parent)
    , m_fields(fields)
    , m_twinName(std::move(twinName))
    , m_stored(fields.address->text())
    , m_text(m_stored)
{
    setObjectName(QStringLiteral("addressProblemLabel"));
    connect(m_fields.address, &QLineEdit::textEdited, this, &AddressGuard::edited);
    connect(m_fields.address, &QLineEdit::textChanged, this, &AddressGuard::changed);
    connect(m_fields.address, &QLineEdit::editingFinished, this, &AddressGuard::finished);
    connect(m_fields.port, &QSpinBox::editingFinished, this, &AddressGuard::finished);
}

void AddressGuard::edited(const QString& text)
{
    m_isPasted = text.size() > m_text.size() + 1;
    m_text = text;
    setProblem(text == m_stored ? QString() : AddressText::parse(text).problem);
    if (problem().isEmpty())
        hide(); // words come when the field is left: half an address is none yet
}

/// Comes after edited(), and after whoever takes the address for a name.
void AddressGuard::changed(const QString& text)
{
    if (std::exchange(m_isPasted, false))
        takeApart();
    else if (text != m_text)
        m_stored = m_text = text; // not typed, but changed elsewhere
}

void AddressGuard::finished()
{
    takeApart();
    if (m_fields.port->isReadOnly())
        return;
    QString words = problem();
    const QString twin = words.isEmpty() ? m_twinName() : QString();
    if (!twin.isEmpty())
        words = tr("\"%1\" has this address and port already.").arg(OutsideText::visible(twin));
    say(words);
}

/// Shows an address that was typed with more around it in the fields where its parts belong.
void AddressGuard::takeApart()
{
    const QString typed = m_fields.address->text();
    if (typed == m_stored)
        return;
    const AddressText address = AddressText::parse(typed);
    if (!address.problem.isEmpty())
        return;
    m_text = address.host;
    if (typed != address.host)
        m_fields.address->setText(address.host);
    if (address.security != AddressText::Unknown)
        m_fields.ssl->setChecked(address.security == AddressText::Ssl); // which may move the port
    if (address.port > 0)
        m_fields.port->setValue(address.port);
    if (!address.user.isEmpty())
        m_fields.user->setText(address.user);
    if (!address.password.isEmpty())
        m_fields.password->setText(address.password);
}

} // namespace ko
