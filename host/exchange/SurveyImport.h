#ifndef KO_SURVEYIMPORT_H
#define KO_SURVEYIMPORT_H

#include "exchange/CameraSurvey.h"
#include "exchange/DeviceFinder.h"
#include "exchange/ProgressReport.h"

#include <QFile>

namespace ko {

class CsvReader;
class NodeHint;

/// One import of one file: read once to see that it is sound, and once more to do what it says.
class SurveyImport
{
public:
    SurveyImport(const QString& fileName, const CameraSurvey::Progress& progress);

    CameraSurvey::ImportResult run();

private:
    enum class Pass { Check, Apply };

    bool goOn(const CameraSurvey::Progress& progress, qint64 done, qint64 total);
    bool store();
    void storeFailed(const QString& reason);
    void log();
    bool open();
    bool readFile(Pass pass);
    bool readHeader(CsvReader& reader, SurveyHeader* header);
    void import(const SurveyRow& row, QString* reason);
    void add(const SurveyRow& row, NodeHint& hint, QString* reason);
    void update(const QString& id, const SurveyRow& row, QString* reason);

    const QString m_fileName;
    QFile m_file; ///< without a name, see FileName
    ProgressReport m_progress;
    CameraSurvey::ImportResult m_result;
    int m_storedAdded = 0;
    int m_storedUpdated = 0;
    bool m_isLogged = false;
    DeviceFinder m_finder;
};

} // namespace ko

#endif
