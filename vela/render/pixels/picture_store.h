// The finished pictures of the process, of every kind, within one budget: found by value, and let go when
// they were asked for longest ago.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vela {

// Mixes numbers into a key's hash. It need not tell all keys apart: they are compared as well.
class HashSum {
public:
    constexpr HashSum& add(std::uint64_t value) noexcept
    {
        sum_ = (sum_ ^ value) * 0x9E3779B97F4A7C15;
        sum_ ^= sum_ >> 32;
        return *this;
    }
    constexpr std::size_t value() const noexcept { return static_cast<std::size_t>(sum_); }

private:
    std::uint64_t sum_ = 1;
};

// A kind of picture is a type with a Key, a Value and weigh(const Value&) in bytes. A key has hash(); what is
// looked up by, a key itself or a view of one, has the same hash, compares with a Key and converts to one.
class PictureStore {
public:
    struct Limits {
        std::size_t bytes;
        std::size_t entries;
    };
    explicit PictureStore(Limits limits) : limits_(limits) {}
    ~PictureStore() = default;
    PictureStore(const PictureStore&) = delete;
    PictureStore& operator=(const PictureStore&) = delete;

    // Null when there is none. What is handed out stays valid, whatever is let go meanwhile.
    template <typename Kind, typename View>
    std::shared_ptr<typename Kind::Value> find(const View& wanted)
    {
        const std::size_t hash = hashOf<Kind>(wanted);
        const auto [first, last] = byHash_.equal_range(hash);
        for (auto at = first; at != last; ++at) {
            Entry& entry = **at->second;
            if (entry.kind != kindOf<Kind>())
                continue;
            auto& known = static_cast<EntryOf<Kind>&>(entry);
            if (wanted == known.key) {
                byUse_.splice(byUse_.begin(), byUse_, at->second);
                return known.value;
            }
        }
        return nullptr;
    }

    // Whether it has been asked for before, not long ago. Most pictures are painted once, as while a window
    // is resized or a light moves: only those that are wanted again are worth their room.
    template <typename Kind, typename View>
    bool isWantedAgain(const View& wanted) noexcept
    {
        const std::size_t hash = hashOf<Kind>(wanted);
        return std::exchange(lately_[hash % lately_.size()], hash) == hash;
    }

    // As find; made by make() -> std::shared_ptr<Value> when there is none.
    template <typename Kind, typename View, typename Make>
    std::shared_ptr<typename Kind::Value> ensure(const View& wanted, Make&& make)
    {
        if (auto known = find<Kind>(wanted))
            return known;
        std::shared_ptr<typename Kind::Value> value = make();
        auto entry = std::make_unique<EntryOf<Kind>>(typename Kind::Key(wanted), value);
        entry->kind = kindOf<Kind>();
        entry->hash = hashOf<Kind>(wanted);
        entry->weight = std::min(Kind::weigh(*value) + sizeof(EntryOf<Kind>), heaviest());
        insert(std::move(entry));
        return value;
    }

    const Limits& limits() const noexcept { return limits_; }

    // For tests: what there is, and how many were made since the start. A repaint of what was painted before
    // adds none.
    std::size_t size() const noexcept { return byUse_.size(); }
    std::size_t weight() const noexcept { return weight_; }
    std::size_t made() const noexcept { return made_; }

private:
    struct Entry {
        virtual ~Entry() = default;
        const void* kind = nullptr;
        std::size_t hash = 0;
        std::size_t weight = 0;
    };
    template <typename Kind>
    struct EntryOf final : Entry {
        EntryOf(typename Kind::Key wanted, std::shared_ptr<typename Kind::Value> made)
            : key(std::move(wanted)), value(std::move(made))
        {
        }
        typename Kind::Key key;
        std::shared_ptr<typename Kind::Value> value;
    };
    using Entries = std::list<std::unique_ptr<Entry>>;

    // An address of its own for each kind.
    template <typename Kind>
    static const void* kindOf() noexcept
    {
        static char place;
        return &place;
    }
    template <typename Kind, typename View>
    static std::size_t hashOf(const View& wanted) noexcept
    {
        return HashSum().add(wanted.hash()).add(reinterpret_cast<std::uintptr_t>(kindOf<Kind>())).value();
    }

    // What is heavier counts as this, so that others have room beside it.
    std::size_t heaviest() const noexcept { return limits_.bytes / 4 * 3; }
    void insert(std::unique_ptr<Entry> entry);
    void letGoOfOldest();

    Limits limits_;
    std::size_t weight_ = 0;
    std::size_t made_ = 0;
    Entries byUse_; // the latest first
    std::unordered_multimap<std::size_t, Entries::iterator> byHash_;
    std::vector<std::size_t> lately_ = std::vector<std::size_t>(1024); // an array would lie in the file
};

// The process's own. UI thread only.
PictureStore& pictureStore();

} // namespace vela
