#ifndef KO_SURVEYFORECAST_H
#define KO_SURVEYFORECAST_H

#include "exchange/CameraSurvey.h"

#include <QHash>

namespace ko {

class NodeHintIPDevice;
class SurveyRow;

/// What an import would do, line by line, without doing it; and which lines are taken but deserve a second
/// look.
class SurveyForecast
{
public:
    /// \a id is that of the device which the line is about; empty if it would add one. Counts in \a result.
    void take(qint64 line, const SurveyRow& row, const NodeHintIPDevice& hint, const QString& id,
              CameraSurvey::ImportResult* result);

private:
    QHash<QString, qint64> m_lines; ///< the first about each device
};

} // namespace ko

#endif
