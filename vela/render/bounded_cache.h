// Values made from keys and kept until there are too many of them: then the one that was asked for longest
// ago goes. Meant for a few hundred entries; a look-up compares keys one by one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vela {

template <typename Key, typename Value>
class BoundedCache {
public:
    explicit BoundedCache(std::size_t capacity) : capacity_(capacity) {}

    // The value for the key, made by make() when there is none. `wanted` is anything that compares with a Key
    // and converts to one, so that a look-up need not copy texts. Valid until the next call.
    template <typename KeyView, typename Make>
    Value& ensure(const KeyView& wanted, Make&& make)
    {
        for (const auto& entry : entries_) {
            if (wanted == entry->key) {
                entry->lastUse = ++clock_;
                return entry->value;
            }
        }
        auto fresh = std::make_unique<Entry>(Entry{Key(wanted), make(), ++clock_});
        ++made_;
        if (entries_.size() < capacity_)
            return entries_.emplace_back(std::move(fresh))->value;
        auto& oldest = *std::min_element(entries_.begin(), entries_.end(), [](const auto& a, const auto& b) {
            return a->lastUse < b->lastUse;
        });
        oldest = std::move(fresh);
        return oldest->value;
    }

    std::size_t size() const noexcept { return entries_.size(); }
    // How many values were made since the start: a repaint of what was painted before adds none.
    std::size_t made() const noexcept { return made_; }

private:
    struct Entry {
        Key key;
        Value value;
        std::uint64_t lastUse;
    };

    std::size_t capacity_;
    std::size_t made_ = 0;
    std::uint64_t clock_ = 0;
    std::vector<std::unique_ptr<Entry>> entries_;
};

} // namespace vela
