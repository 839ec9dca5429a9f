#include "vela/render/text/text_lines.h"

#include "vela/text_clusters.h"

#include <algorithm>
#include <limits>

namespace vela {
namespace {

constexpr wchar_t kEllipsis[] = L"\u2026";
constexpr std::int32_t kAllLines = std::numeric_limits<std::int32_t>::max();

constexpr bool isLineEnd(wchar_t c) noexcept { return c == L'\n' || c == L'\r'; }

// A tab or another control character has no glyph of its own: fonts show a box or nothing. Some of them, and
// the separators of lines and paragraphs, begin a new line in a text engine.
constexpr bool isControl(wchar_t c) noexcept
{
    return static_cast<std::uint32_t>(c) < 0x20 || c == L'\u0085' || c == L'\u2028' || c == L'\u2029';
}

// One line's worth of text between two line ends, with the widths of its parts.
class Paragraph {
public:
    Paragraph(std::wstring_view text, const TextMeasurer& measurer)
        : text_(unbrokenLine(text)), measurer_(measurer)
    {
        measurer_.measure(text_, ends_);
    }

    std::size_t size() const noexcept { return text_.size(); }
    std::wstring_view part(std::size_t begin, std::size_t end) const
    {
        return std::wstring_view(text_).substr(begin, end - begin);
    }

    struct Line {
        std::size_t end;  // of what is shown
        std::size_t next; // where the next line begins
    };
    Line lineFrom(std::size_t begin, std::int32_t width) const
    {
        const std::size_t limit = firstBeyond(begin, width);
        if (limit == size())
            return {size(), size()};
        const std::size_t blank = text_.rfind(L' ', limit);
        const std::size_t end =
            blank == std::wstring::npos || blank < begin ? begin : endOfWord(begin, blank);
        if (end == begin)
            return insideWord(begin, limit);
        return {end, wordFrom(blank)};
    }

    // As much as the width has room for, and an ellipsis.
    std::wstring cutFrom(std::size_t begin, std::int32_t width) const
    {
        std::vector<std::int32_t> ellipsis;
        measurer_.measure(kEllipsis, ellipsis);
        const std::int64_t room = std::int64_t{width} - (ellipsis.empty() ? 0 : ellipsis.back());
        const std::size_t limit = firstBeyond(begin, room);
        const std::size_t end = endOfWord(begin, std::max(begin, nearestCaretStop(text_, limit)));
        return std::wstring(part(begin, end)) + kEllipsis;
    }

private:
    // The first unit that does not fit any more.
    std::size_t firstBeyond(std::size_t begin, std::int64_t width) const
    {
        const std::int64_t before = begin == 0 ? 0 : ends_[begin - 1];
        const auto first = ends_.begin() + static_cast<std::ptrdiff_t>(begin);
        const std::int64_t limit = before + std::max<std::int64_t>(width, 0);
        return static_cast<std::size_t>(std::upper_bound(first, ends_.end(), limit) - ends_.begin());
    }

    std::size_t endOfWord(std::size_t begin, std::size_t end) const noexcept
    {
        while (end > begin && text_[end - 1] == L' ')
            --end;
        return end;
    }

    std::size_t wordFrom(std::size_t index) const noexcept
    {
        return std::min(text_.find_first_not_of(L' ', index), size());
    }

    // A path reads better broken behind a separator, unless that wastes most of the line.
    Line insideWord(std::size_t begin, std::size_t limit) const
    {
        std::size_t end = nearestCaretStop(text_, limit);
        if (end <= begin)
            end = nextCaretStop(text_, begin);
        const std::size_t separator = text_.find_last_of(L"\\/", end - 1);
        if (separator != std::wstring::npos && separator >= begin + (end - begin) / 2)
            end = separator + 1;
        return {end, wordFrom(end)};
    }

    std::wstring text_;
    std::vector<std::int32_t> ends_;
    const TextMeasurer& measurer_;
};

class LineCollector {
public:
    LineCollector(std::int32_t width, std::int32_t maxLines, const TextMeasurer& measurer)
        : width_(width), maxLines_(maxLines), measurer_(measurer)
    {
    }

    // False when no further paragraph is wanted.
    bool add(std::wstring_view text, bool moreFollow)
    {
        const Paragraph paragraph(text, measurer_);
        std::size_t begin = 0;
        do {
            const Paragraph::Line line = paragraph.lineFrom(begin, width_);
            const bool last = lines_.count + 1 >= maxLines_;
            if (last && (moreFollow || line.next < paragraph.size())) {
                append(paragraph.cutFrom(begin, width_));
                return false;
            }
            append(paragraph.part(begin, line.end));
            begin = line.next;
        } while (begin < paragraph.size());
        return true;
    }

    TextLines take() { return std::move(lines_); }

private:
    void append(std::wstring_view line)
    {
        if (lines_.count++ > 0)
            lines_.text += L'\n';
        lines_.text += line;
    }

    std::int32_t width_;
    std::int32_t maxLines_;
    const TextMeasurer& measurer_;
    TextLines lines_;
};

TextLines collectLines(std::wstring_view text, std::int32_t width, std::int32_t maxLines,
                       const TextMeasurer& measurer)
{
    LineCollector collector(width, maxLines, measurer);
    while (true) {
        const auto end =
            static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isLineEnd) - text.begin());
        const bool moreFollow = end < text.size();
        if (!collector.add(text.substr(0, end), moreFollow) || !moreFollow)
            return collector.take();
        text.remove_prefix(text.substr(end, 2) == L"\r\n" ? end + 2 : end + 1);
    }
}

} // namespace

TextLines composeText(std::wstring_view text, TextWrap wrap, Size room, std::int32_t lineHeight,
                      const TextMeasurer& measurer)
{
    if (wrap == TextWrap::Words)
        return collectLines(text, room.width, std::max(room.height / std::max(lineHeight, 1), 1), measurer);
    const Paragraph line(text, measurer);
    const bool fits = line.lineFrom(0, room.width).next == line.size();
    return {fits ? std::wstring(line.part(0, line.size())) : line.cutFrom(0, room.width), 1};
}

TextLines wrapText(std::wstring_view text, std::int32_t width, const TextMeasurer& measurer)
{
    return collectLines(text, width, kAllLines, measurer);
}

std::wstring unbrokenLine(std::wstring_view text)
{
    std::wstring line(text);
    std::replace_if(line.begin(), line.end(), isControl, L' ');
    return line;
}

} // namespace vela
