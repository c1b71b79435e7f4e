#ifndef KO_ADDRESSGUARD_H
#define KO_ADDRESSGUARD_H

#include "drivers/FieldGuard.h"
#include "ko/TrContext.h"

#include <functional>

class QAbstractButton;
class QLineEdit;
class QSpinBox;

namespace ko {

/// Watches the field in which a user types an address: what is pasted with a scheme, port or user is taken
/// apart into the fields beside it, and what is not an address is refused, in words above the field and by
/// the buttons that would store it. An address that was there before is left alone, whatever it is.
class AddressGuard : public FieldGuard
{
    Q_OBJECT
    KO_TR_CONTEXT(AddressGuard)

public:
    struct Fields
    {
        QLineEdit* address;
        QSpinBox* port;
        QAbstractButton* ssl;
        QLineEdit* user;
        QLineEdit* password;
    };

    typedef std::function<QString()>
        TwinName; ///< of the node that has the address already; empty if none has

    /// The fields outlive the guard.
    AddressGuard(const Fields& fields, TwinName twinName, QWidget* parent);

private:
    void edited(const QString& text);
    void changed(const QString& text);
    void finished();
    void takeApart();

    const Fields m_fields;
    const TwinName m_twinName;
    QString m_stored;
    QString m_text; ///< as it was typed or set last
    bool m_isPasted = false;
};

} // namespace ko

#endif
