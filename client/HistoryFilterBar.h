#ifndef KO_HISTORYFILTERBAR_H
#define KO_HISTORYFILTERBAR_H

#include "ko/TrContext.h"
#include "model/HistoryFilter.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

namespace ko {

/// The fields that say which change sets the user looks for.
class HistoryFilterBar : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(HistoryFilterBar)

public:
    explicit HistoryFilterBar(QWidget* parent);

    /// Without nodes.
    HistoryFilter filter() const;

    void retranslate();

signals:
    void changed();

private:
    QLabel* label(QWidget* field);
    void createDates();
    void createLayout();
    void fillKinds();
    void fillProperties();

    QLineEdit* const m_text;
    QLineEdit* const m_user;
    QComboBox* const m_kind;
    QComboBox* const m_property;
    QCheckBox* const m_isFrom;
    QCheckBox* const m_isTo;
    QDateEdit* const m_from;
    QDateEdit* const m_to;
    QLabel* const m_textLabel;
    QLabel* const m_userLabel;
    QLabel* const m_kindLabel;
    QLabel* const m_propertyLabel;
};

} // namespace ko

#endif
