#ifndef KO_SAMPLE_H
#define KO_SAMPLE_H

#include "exchange/SurveyText.h"

#include <QStringList>

namespace ko {

/// The first ten of many names, and how many more there are, for one line of a message.
class Sample
{
public:
    bool isEmpty() const { return m_count == 0; }

    void add(const QString& name)
    {
        if (m_count++ < Named)
            m_names.append(name);
    }

    QString text() const
    {
        const QString named = m_names.join(SurveyText::tr(", ", "between the parts of a list"));
        return m_count <= Named
                   ? named
                   : SurveyText::tr("%1 and %2 more").arg(named, QString::number(m_count - Named));
    }

private:
    enum { Named = 10 };

    QStringList m_names;
    int m_count = 0;
};

} // namespace ko

#endif
