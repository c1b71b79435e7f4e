#ifndef KOM_SMART_H
#define KOM_SMART_H

#include <memory>
#include <utility>

namespace kom {

/// Reference-counted handle in which a host hands out nodes, hints and drivers.
///
/// Copies join the group of the original; the object is deleted when the last handle of the group is
/// reset or destroyed. A default-constructed handle is null: test null() before use. T may be an
/// incomplete type wherever the handle is only passed on. Counting is thread-safe, the object is not.
template <class T>
class smart
{
public:
    smart() = default;

    /// Takes ownership of \a object and starts a new group.
    template <class U>
    explicit smart(U* object)
        : m_object(object)
    {
    }

    template <class U>
    smart(std::shared_ptr<U> object)
        : m_object(std::move(object))
    {
    }

    /// Joins the group of a handle to a derived or less const type.
    template <class U>
    smart(const smart<U>& other)
        : m_object(other.shared())
    {
    }

    bool null() const { return !m_object; }
    T* get() const { return m_object.get(); }
    T* operator->() const { return m_object.get(); }
    T& operator*() const { return *m_object; }

    /// Leaves the group; the handle is null afterwards.
    void reset() { m_object.reset(); }

    /// Checked cast along or across the class hierarchy; null when the object is no U. The result
    /// belongs to the same group.
    template <class U>
    smart<U> cast() const
    {
        return smart<U>(std::dynamic_pointer_cast<U>(m_object));
    }

    const std::shared_ptr<T>& shared() const { return m_object; }

private:
    std::shared_ptr<T> m_object;
};

template <class T, class U>
bool operator==(const smart<T>& a, const smart<U>& b)
{
    return a.get() == b.get();
}

template <class T, class U>
bool operator!=(const smart<T>& a, const smart<U>& b)
{
    return a.get() != b.get();
}

/// Makes object and group in one allocation.
template <class T, class... Args>
smart<T> makeSmart(Args&&... args)
{
    return smart<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

} // namespace kom

#endif
