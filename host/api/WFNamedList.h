#pragma once

#include <utility>

/// Registries keep registration order and let a later registration under the same key
/// replace the earlier one in place. keyOf reads an item's key.
template <typename Items, typename Key, typename KeyOf, typename Item>
void replaceOrAppend(Items& items, const Key& key, KeyOf keyOf, Item&& item)
{
    for (auto& existing : items) {
        if (keyOf(existing) == key) {
            existing = std::forward<Item>(item);
            return;
        }
    }
    items.push_back(std::forward<Item>(item));
}

/// replaceOrAppend for lists of (key, value) pairs.
template <typename Pairs, typename Key, typename Value>
void setNamed(Pairs& pairs, const Key& key, Value&& value)
{
    replaceOrAppend(pairs, key, [](const auto& pair) -> const auto& { return pair.first; },
                    typename Pairs::value_type(key, std::forward<Value>(value)));
}

/// The first item whose key matches, or nullptr.
template <typename Items, typename Key, typename KeyOf>
auto findNamed(Items& items, const Key& key, KeyOf keyOf) -> decltype(&*items.begin())
{
    for (auto& item : items)
        if (keyOf(item) == key)
            return &item;
    return nullptr;
}
