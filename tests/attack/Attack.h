#ifndef TESTS_ATTACK_ATTACK_H
#define TESTS_ATTACK_ATTACK_H

#include <QElapsedTimer>
#include <QFile>
#include <QVector>

#include <random>

namespace attack {

typedef std::mt19937 Random;

/// From 0 to \a count - 1.
inline int below(Random& random, int count)
{
    return int(random() % unsigned(count));
}

inline bool oneIn(Random& random, int count)
{
    return below(random, count) == 0;
}

template <class List>
auto anyOf(Random& random, const List& list) -> decltype(list[0])
{
    return list[below(random, int(std::size(list)))];
}

/// The rounds of an attack, each made by rule from a seed, so that it can be made again.
///
/// First the seeds that once broke something (tests/attack/seeds/NAME.txt, one a line, comments after "#"),
/// then the same few in every run. KO_ATTACK_SECONDS goes on with new ones for so long; KO_ATTACK_SEED makes
/// one only.
class Rounds
{
public:
    Rounds(const char* name, int usual)
    {
        bool isGiven = false;
        const uint given = qEnvironmentVariable("KO_ATTACK_SEED").toUInt(&isGiven);
        if (isGiven) {
            m_seeds.append(given);
            return;
        }
        QFile kept(QString::fromLatin1(KO_SOURCE_DIR "/tests/attack/seeds/%1.txt").arg(QLatin1String(name)));
        if (kept.open(QIODevice::ReadOnly)) {
            const QList<QByteArray> lines = kept.readAll().split('\n');
            for (const QByteArray& line : lines) {
                const QByteArray number = line.left(line.indexOf('#') < 0 ? -1 : line.indexOf('#')).trimmed();
                if (!number.isEmpty())
                    m_seeds.append(number.toUInt());
            }
        }
        for (int i = 1; i <= usual; ++i)
            m_seeds.append(uint(i));
        m_seconds = qEnvironmentVariableIntValue("KO_ATTACK_SECONDS");
        m_clock.start();
    }

    ~Rounds() { qInfo("%d rounds", m_round); }

    bool next()
    {
        if (++m_round < m_seeds.size())
            m_seed = m_seeds.at(m_round);
        else if (m_seconds > 0 && m_clock.elapsed() < qint64(m_seconds) * 1000)
            m_seed = std::random_device()();
        else
            return false;
        m_random.seed(m_seed);
        return true;
    }

    Random& random() { return m_random; }

    /// For messages.
    QByteArray name() const { return "KO_ATTACK_SEED=" + QByteArray::number(m_seed); }

private:
    Q_DISABLE_COPY(Rounds)

    QVector<uint> m_seeds;
    int m_round = -1;
    int m_seconds = 0;
    uint m_seed = 0;
    QElapsedTimer m_clock;
    Random m_random;
};

} // namespace attack

#endif
