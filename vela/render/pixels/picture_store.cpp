#include "vela/render/pixels/picture_store.h"

namespace vela {

void PictureStore::insert(std::unique_ptr<Entry> entry)
{
    ++made_;
    weight_ += entry->weight;
    byUse_.push_front(std::move(entry));
    byHash_.emplace(byUse_.front()->hash, byUse_.begin());
    while (weight_ > limits_.bytes || byUse_.size() > limits_.entries)
        letGoOfOldest();
}

void PictureStore::letGoOfOldest()
{
    const auto oldest = std::prev(byUse_.end());
    const auto [first, last] = byHash_.equal_range((*oldest)->hash);
    auto at = first;
    while (at != last && at->second != oldest)
        ++at;
    if (at != last)
        byHash_.erase(at);
    weight_ -= (*oldest)->weight;
    byUse_.pop_back();
}

PictureStore& pictureStore()
{
    // A window as large as a 4K screen whose light moves takes four pictures of its size, 32 MB each, and its
    // controls some small ones; a dialog in all its states takes a tenth of that.
    constexpr PictureStore::Limits kLimits{144U << 20, 1024};
    static PictureStore store(kLimits);
    return store;
}

} // namespace vela
