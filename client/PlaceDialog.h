#ifndef KO_PLACEDIALOG_H
#define KO_PLACEDIALOG_H

#include "PlaceCommands.h"
#include "ko/TrContext.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace ko {

/// Asks where devices are, and for their tags. What they have differently stays so unless it is entered.
class PlaceDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(PlaceDialog)

public:
    /// \a places are offered.
    PlaceDialog(int devices, const QStringList& places, QWidget* parent);

    /// What all the devices have; nothing where they differ.
    void setValues(const PlaceCommands::Values& values);

    /// What the user has changed; a location is normalized.
    PlaceCommands::Values values() const;

private:
    void retranslate();

    const int m_devices;
    PlaceCommands::Values m_common;
    QLabel* const m_text;
    QComboBox* const m_location;
    QLineEdit* const m_tags;
    QLabel* const m_locationLabel;
    QLabel* const m_tagsLabel;
};

} // namespace ko

#endif
