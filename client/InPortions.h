#ifndef KO_INPORTIONS_H
#define KO_INPORTIONS_H

#include <QElapsedTimer>
#include <QTimer>
#include <QVector>

#include <deque>
#include <functional>
#include <utility>

namespace ko {

/// Does much work on the GUI thread in portions that nobody notices: the event loop turns between two.
template <class Item>
class InPortions
{
public:
    typedef std::function<void(const Item& item)> Take;

    enum Limits { Portion = 2 /* ms, for one begun */ };

    /// \a taken is called after each portion; more may be added in it.
    InPortions(Take take, std::function<void()> taken)
        : m_take(std::move(take))
        , m_taken(std::move(taken))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { takeSome(); });
    }

    template <class Items>
    void add(const Items& items)
    {
        m_items.insert(m_items.end(), items.begin(), items.end());
        m_timer.start(0); // also when there is nothing: the end comes later, as always
    }

    bool isEmpty() const { return m_items.empty(); }

    void clear()
    {
        m_items.clear();
        m_timer.stop();
    }

private:
    void takeSome()
    {
        QElapsedTimer clock;
        clock.start();
        while (!m_items.empty() && !clock.hasExpired(Portion)) {
            const Item item = std::move(m_items.front());
            m_items.pop_front();
            m_take(item);
        }
        if (m_items.empty())
            m_timer.stop();
        m_taken();
    }

    const Take m_take;
    const std::function<void()> m_taken;
    std::deque<Item> m_items;
    QTimer m_timer;
};

} // namespace ko

#endif
