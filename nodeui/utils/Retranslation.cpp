#include "utils/Retranslation.h"

#include <QEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>

#include <utility>

namespace ko {

namespace {

/// Has no signals or slots, and so no Q_OBJECT.
class LanguageFilter : public QObject
{
public:
    LanguageFilter(QWidget* widget, const std::function<void()>& setTexts)
        : QObject(widget)
        , m_setTexts(setTexts)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_setTexts();
        return QObject::eventFilter(watched, event);
    }

private:
    const std::function<void()> m_setTexts;
};

} // namespace

void setTranslated(QWidget* widget, const std::function<void()>& setTexts)
{
    setTexts();
    onLanguageChange(widget, setTexts);
}

void onLanguageChange(QWidget* widget, const std::function<void()>& setTexts)
{
    new LanguageFilter(widget, setTexts);
}

void describePlainly(QWidget* widget)
{
    const QList<QWidget*> parts = widget->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        const QString tip = part->toolTip();
        if (Qt::mightBeRichText(tip))
            part->setAccessibleDescription(QTextDocumentFragment::fromHtml(tip).toPlainText());
    }
}

KeptEntries::KeptEntries(QWidget* widget)
{
    const QList<QLineEdit*> fields = widget->findChildren<QLineEdit*>();
    for (QLineEdit* field : fields) {
        const Entry entry = {field, field->text(), field->blockSignals(true)};
        m_entries.append(entry);
    }
}

KeptEntries::~KeptEntries()
{
    for (const Entry& entry : std::as_const(m_entries)) {
        if (entry.field->text() != entry.text)
            entry.field->setText(entry.text);
        entry.field->blockSignals(entry.wasBlocked);
    }
}

} // namespace ko
