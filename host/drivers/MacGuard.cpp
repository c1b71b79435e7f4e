#include "drivers/MacGuard.h"

#include "ko/MACAddress.h"

#include <QBoxLayout>
#include <QLineEdit>

namespace ko {

MacGuard::MacGuard(QLineEdit* field)
    : FieldGuard(field, field->parentWidget()->parentWidget())
{
    setObjectName(QStringLiteral("macProblemLabel"));
    QWidget* page = field->parentWidget();
    auto* tab = static_cast<QBoxLayout*>(page->parentWidget()->layout());
    tab->insertWidget(tab->indexOf(page), this);
    connect(field, &QLineEdit::textChanged, this, [this](const QString& text) {
        const bool isGood = text.trimmed().isEmpty() || !MACAddress(text).isNull();
        setProblem(isGood ? QString()
                          : tr("A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB."));
        if (isGood)
            hide(); // words come when the field is left: half an address is none yet
    });
    connect(field, &QLineEdit::editingFinished, this, [this] { say(problem()); });
}

} // namespace ko
