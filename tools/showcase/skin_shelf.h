// The skins that the showcase can show: those of the watched file, as it last was in order, and then those of
// the catalogue. One of them is the current one, and stays it while its file is written again and again.
#pragma once

#include "vela/theme/skins/skin_document.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace showcase {

class SkinShelf {
public:
    // `fileName` is what the lint's lines call the watched file; empty when there is none.
    SkinShelf(std::string fileName, std::vector<vela::SkinDefinition> catalogue);

    // The watched file's bytes as they are now; none when it cannot be read. True when its skins were taken
    // over: a file with errors in it leaves the last good ones, unless there never were any.
    bool read(const std::optional<std::string>& bytes);

    // What the lint says about the bytes that were read last, a line for each finding.
    const std::vector<std::wstring>& lines() const noexcept { return lines_; }

    // Whether what is shown is what the file holds.
    bool isCurrent() const noexcept { return current_; }

    // Never empty: the built-in skin stands in where there is nothing else.
    const std::vector<vela::SkinDefinition>& skins() const noexcept { return skins_; }
    const vela::SkinDefinition& skin() const noexcept { return skins_[index_]; }
    std::size_t index() const noexcept { return index_; }
    // Whether the current skin is one of the watched file's.
    bool showsFile() const noexcept { return index_ < fromFile_.size(); }

    // False, with nothing changed, when no skin has the id.
    bool choose(std::wstring_view id);
    // To the next skin or the one before, around the ends.
    void step(int by);

private:
    void join();

    std::string fileName_;
    std::vector<vela::SkinDefinition> catalogue_;
    std::vector<vela::SkinDefinition> fromFile_;
    std::vector<vela::SkinDefinition> skins_;
    std::vector<std::wstring> lines_;
    std::size_t index_ = 0;
    bool current_ = true;
};

} // namespace showcase
