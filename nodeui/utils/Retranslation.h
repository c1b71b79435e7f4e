#ifndef KO_RETRANSLATION_H
#define KO_RETRANSLATION_H

#include "NodeUIExport.h"

#include <QList>
#include <QString>

#include <functional>

class QLineEdit;
class QWidget;

namespace ko {

/// Calls \a setTexts now, and whenever the language changes while \a widget is there. What it uses must live
/// as long as the widget.
KO_NODEUI_EXPORT void setTranslated(QWidget* widget, const std::function<void()>& setTexts);

/// Calls \a setTexts only when the language changes: for texts that are set already.
KO_NODEUI_EXPORT void onLanguageChange(QWidget* widget, const std::function<void()>& setTexts);

/// While there is one, line edits in \a widget are silent; at the end they have their old texts again.
class KO_NODEUI_EXPORT KeptEntries
{
public:
    explicit KeptEntries(QWidget* widget);
    ~KeptEntries();

private:
    Q_DISABLE_COPY(KeptEntries)

    struct Entry
    {
        QLineEdit* field;
        QString text;
        bool wasBlocked;
    };
    QList<Entry> m_entries;
};

/// What the tool tips in \a widget say in rich text is said to screen readers without its markup.
KO_NODEUI_EXPORT void describePlainly(QWidget* widget);

/// As form.retranslateUi() does, which however empties the fields that are empty in the form.
template <class Form, class Widget>
void retranslateForm(Form& form, Widget* widget)
{
    const KeptEntries kept(widget);
    form.retranslateUi(widget);
    describePlainly(widget);
}

} // namespace ko

#endif
