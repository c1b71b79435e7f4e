#ifndef KO_READAHEAD_H
#define KO_READAHEAD_H

#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <optional>

namespace ko {

/// What one thread reads and another takes, in its order. The reader is ahead by no more than there is room
/// for.
template <class Item>
class ReadAhead
{
public:
    explicit ReadAhead(size_t room)
        : m_room(room)
    {
    }

    /// Runs \a read in a thread, with a function that takes each item and returns false when no more is
    /// wanted, and \a take in this one for as long as it returns true. Returns what \a read does. \a take may
    /// throw.
    template <class Read, class Take>
    auto run(const Read& read, const Take& take)
    {
        auto reading = std::async(std::launch::async, [this, &read] {
            const Ending ending{this, true};
            return read([this](Item item) { return put(std::move(item)); });
        });
        {
            const Ending ending{this, false};
            for (std::optional<Item> item = next(); item && take(*item); item = next()) {
            }
        }
        return reading.get();
    }

private:
    struct Ending
    {
        ReadAhead* queue;
        bool isReader;
        ~Ending() { queue->end(isReader); }
    };

    bool put(Item item)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_items.size() < m_room || m_isUnwanted; });
        m_items.push_back(std::move(item));
        if (m_items.size() == 1)
            m_changed.notify_one();
        return !m_isUnwanted;
    }

    std::optional<Item> next()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_items.empty() || m_isAtEnd; });
        if (m_items.empty())
            return std::nullopt;
        std::optional<Item> item = std::move(m_items.front());
        m_items.pop_front();
        if (m_items.size() + 1 == m_room)
            m_changed.notify_one();
        return item;
    }

    void end(bool isReader)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        (isReader ? m_isAtEnd : m_isUnwanted) = true;
        m_changed.notify_one();
    }

    const size_t m_room;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Item> m_items;
    bool m_isAtEnd = false;
    bool m_isUnwanted = false;
};

} // namespace ko

#endif
