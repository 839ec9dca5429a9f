// The settings of a skin section, flattened: one line of text for each leaf of the JSON tree, found by its
// dotted path ("styles.button.primary.hot.fill"). Path segments are kept in normalised form (no "_", "-" or
// white space, lower case), so camelCase, snake_case and kebab-case spell one key. Of several spellings of
// one key the one that sorts last in the document's object is read last and wins: snake_case over camelCase.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

class JsonValue;
class SkinView;

class SkinMap {
public:
    // Adds every leaf of the value under the path; null adds nothing. Arrays of leaves become one text,
    // joined by commas. Paths longer than any that a reader asks for are left out, which bounds the memory
    // that a hostile document can ask for.
    void add(std::wstring_view path, const JsonValue& value);
    void addText(std::wstring_view path, std::wstring_view text);

    // Puts the settings into the order in which views find them. Needed after the last addition and before
    // the first view; settings of one path keep the order in which they were added.
    void sort();

    bool empty() const noexcept { return settings_.empty(); }
    std::size_t size() const noexcept { return settings_.size(); }

private:
    friend class SkinView;

    struct Setting {
        std::uint32_t path; // both are positions in text_
        std::uint32_t pathLength;
        std::uint32_t value;
        std::uint32_t valueLength;
    };

    std::wstring_view pathOf(const Setting& setting) const noexcept
    {
        return std::wstring_view(text_).substr(setting.path, setting.pathLength);
    }
    std::wstring_view valueOf(const Setting& setting) const noexcept
    {
        return std::wstring_view(text_).substr(setting.value, setting.valueLength);
    }
    void addLeaves(std::wstring& path, const JsonValue& value);
    void addArray(std::wstring_view path, std::span<const JsonValue> items);

    std::wstring text_;
    std::vector<Setting> settings_;
};

// The part of a sorted SkinMap that lies under one path: the settings of the path itself and those below it.
// Borrows the map.
class SkinView {
public:
    // All settings of the map.
    explicit SkinView(const SkinMap& map) noexcept;

    // What lies under a key, which may itself be a dotted path; the key is compared in normalised form.
    SkinView at(std::wstring_view key) const noexcept;
    SkinView at(std::string_view key) const noexcept;

    bool empty() const noexcept { return own_.empty() && below_.empty(); }
    bool hasChildren() const noexcept { return !below_.empty(); }

    // The texts set for the path itself, in reading order; usually one.
    std::size_t textCount() const noexcept { return own_.size(); }
    std::wstring_view text(std::size_t index) const noexcept { return map_->valueOf(own_[index]); }

    // A bit for each letter with which a path below goes on, one more for all that are no letters.
    std::uint32_t initials() const noexcept;
    static std::uint32_t initialOf(wchar_t c) noexcept;

    // The distinct first segments below the path, sorted.
    std::vector<std::wstring_view> childNames() const;

private:
    using Settings = std::span<const SkinMap::Setting>;

    SkinView(const SkinMap& map, Settings own, Settings below, std::size_t depth) noexcept
        : map_(&map), own_(own), below_(below), depth_(depth)
    {
    }
    template <typename Char>
    SkinView find(std::basic_string_view<Char> key) const noexcept;

    const SkinMap* map_;
    Settings own_;
    Settings below_;
    std::size_t depth_ = 0; // units of the paths below that lead to this view, its dot included
};

} // namespace vela
