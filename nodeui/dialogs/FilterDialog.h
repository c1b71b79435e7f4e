#ifndef KO_FILTERDIALOG_H
#define KO_FILTERDIALOG_H

#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>

namespace Ui {
class FilterDialog;
}

namespace ko {

/// Shows the node types with check boxes. Nothing reads the choices.
class FilterDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(FilterDialog)

public:
    explicit FilterDialog(QWidget* parent);
    ~FilterDialog() override;

private:
    Q_DISABLE_COPY(FilterDialog)

    const QScopedPointer<Ui::FilterDialog> m_ui;
};

} // namespace ko

#endif
