#ifndef KO_DEVICEFINDER_H
#define KO_DEVICEFINDER_H

#include "exchange/SurveyRow.h"

#include <QMultiHash>
#include <QSet>

#include <functional>

namespace ko {

class NodeHint;

/// Finds the device that a line of a survey is about.
///
/// The database decides by its own rule where the line says enough for it. Where port or channel are
/// left open, the one device at that address is meant; without an address, the one with that name. Such
/// a guess only ever finds devices that the import has not added itself, so that two lines of one survey
/// don't become one device; lines without an address are also the same device when their names are.
class DeviceFinder
{
public:
    /// A device as the index holds it: what else is still in it of a device does no harm, because find()
    /// looks at the device again.
    struct Known
    {
        QString id;
        QString name;
        QString address;
    };

    /// \a devices gives all devices; it is called when a line first needs them.
    explicit DeviceFinder(std::function<QVector<Known>()> devices);

    /// Id of the device, empty when there is none; \a reason is set when it could be several.
    QString find(const SurveyRow& row, const NodeHint& hint, QString* reason);

    /// To be called for each device that the import adds.
    void added(const QString& id, const SurveyRow& row);

    /// To be called for each device that somebody else adds or changes meanwhile.
    void changed(const QString& id);

private:
    QString findByAddress(const SurveyRow& row, const NodeHint& hint, QString* reason);
    QString findByName(const SurveyRow& row, QString* reason);
    void readDevices();
    void insert(const Known& device);

    const std::function<QVector<Known>()> m_devices;
    bool m_isRead = false;
    QMultiHash<QString, QString> m_byAddress;
    QMultiHash<QString, QString> m_byName;
    QHash<QString, QString> m_addedByName; ///< those without an address
    QSet<QString> m_known;                 ///< added, or found by the database's own rule
};

} // namespace ko

#endif
