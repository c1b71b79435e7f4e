#ifndef KO_SURVEYTEXT_H
#define KO_SURVEYTEXT_H

#include <QCoreApplication>

namespace ko {

/// The words of all who read and write surveys are translated in one context.
struct SurveyText
{
    Q_DECLARE_TR_FUNCTIONS(CameraSurvey)
};

} // namespace ko

#endif
