#ifndef KO_PREFERENCESDIALOG_H
#define KO_PREFERENCESDIALOG_H

#include "ko/TrContext.h"

#include <QDialog>

#include <functional>
#include <vector>

class QLineEdit;
class QWidget;

namespace ko {

class HostNodeDB;

/// The settings that hold for the whole database. Written on OK.
class PreferencesDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(PreferencesDialog)

public:
    explicit PreferencesDialog(HostNodeDB& db, QWidget* parent = nullptr);

    void accept() override;

private:
    QLineEdit* pathField();
    QWidget* previewField();
    QWidget* bandwidthField();
    void browse(QLineEdit* path);

    HostNodeDB& m_db;
    std::vector<std::function<void()>> m_writers; ///< one of each field
};

} // namespace ko

#endif
