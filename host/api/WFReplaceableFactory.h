#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

/// The runtime's way of making an object that tests may make instead: the replacement, when one
/// is set, else `Default`. Thread-safe; the replacement is called outside the lock.
template <typename Interface, typename Default>
class TWFReplaceableFactory {
public:
    using Function = std::function<std::shared_ptr<Interface>()>;

    std::shared_ptr<Interface> create()
    {
        Function current;
        {
            std::lock_guard lock(m_mutex);
            current = m_replacement;
        }
        if (current)
            return current();
        return std::make_shared<Default>();
    }

    /// An empty function restores the default. Returns the previous replacement.
    Function replace(Function replacement)
    {
        std::lock_guard lock(m_mutex);
        return std::exchange(m_replacement, std::move(replacement));
    }

private:
    std::mutex m_mutex;
    Function m_replacement;
};
