// Values made from keys and kept until there are too many of them: then those go that were asked for longest
// ago. Meant for a few hundred entries; a look-up compares keys one by one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vela {

struct EachCountsOne {
    template <typename Value>
    constexpr std::size_t operator()(const Value&) const noexcept
    {
        return 1;
    }
};

// Weigh tells how much of the capacity a value takes; a value heavier than all of it is kept alone.
template <typename Key, typename Value, typename Weigh = EachCountsOne>
class BoundedCache {
public:
    explicit BoundedCache(std::size_t capacity) : capacity_(capacity) {}

    // The value for the key, null when there is none. `wanted` is anything that compares with a Key, so that
    // a look-up need not copy texts. Valid until the next call.
    template <typename KeyView>
    Value* find(const KeyView& wanted)
    {
        for (const auto& entry : entries_) {
            if (wanted == entry->key) {
                entry->lastUse = ++clock_;
                return &entry->value;
            }
        }
        return nullptr;
    }

    // The same, made by make() when there is none; `wanted` also converts to a Key.
    template <typename KeyView, typename Make>
    Value& ensure(const KeyView& wanted, Make&& make)
    {
        if (Value* const known = find(wanted))
            return *known;
        auto fresh = std::make_unique<Entry>(Entry{Key(wanted), make(), ++clock_});
        ++made_;
        makeRoom(Weigh{}(fresh->value));
        return entries_.emplace_back(std::move(fresh))->value;
    }

    void clear() noexcept { entries_.clear(); }

    std::size_t size() const noexcept { return entries_.size(); }
    // How many values were made since the start, for tests: a repaint of what was painted before adds none.
    std::size_t made() const noexcept { return made_; }

private:
    struct Entry {
        Key key;
        Value value;
        std::uint64_t lastUse;
    };

    void makeRoom(std::size_t weight)
    {
        for (const auto& entry : entries_)
            weight += Weigh{}(entry->value);
        while (!entries_.empty() && weight > capacity_) {
            const auto oldest =
                std::min_element(entries_.begin(), entries_.end(),
                                 [](const auto& a, const auto& b) { return a->lastUse < b->lastUse; });
            weight -= Weigh{}((*oldest)->value);
            entries_.erase(oldest);
        }
    }

    std::size_t capacity_;
    std::size_t made_ = 0;
    std::uint64_t clock_ = 0;
    std::vector<std::unique_ptr<Entry>> entries_;
};

} // namespace vela
