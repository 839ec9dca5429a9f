#include "vela/text_clusters.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(TextClusters, CaretStopsKeepPairsMarksAndJoinedEmojiWhole)
{
    const struct {
        std::wstring_view text;
        std::vector<std::size_t> stops;
    } rows[] = {
        {L"ab", {0, 1, 2}},
        {L"c\u030Cx", {0, 2, 3}},                        // c with caron as two code points
        {L"a\xD83D\xDE00z", {0, 1, 3, 4}},               // a surrogate pair
        {L"\xD83D\xDC69\u200D\xD83D\xDCBB!", {0, 5, 6}}, // woman, joiner, laptop
        {L"\xDE00\xD83D", {0, 1, 2}},                    // lone halves stand for themselves
        {L"", {0}},
    };
    for (const auto& row : rows) {
        std::vector<std::size_t> forward{0};
        while (forward.back() < row.text.size())
            forward.push_back(nextCaretStop(row.text, forward.back()));
        EXPECT_EQ(forward, row.stops);
        std::vector<std::size_t> backward{row.text.size()};
        while (backward.back() > 0)
            backward.push_back(previousCaretStop(row.text, backward.back()));
        EXPECT_EQ(backward, std::vector<std::size_t>(row.stops.rbegin(), row.stops.rend()));
    }
    EXPECT_EQ(nearestCaretStop(L"a\xD83D\xDE00", 2), 1u);
}

TEST(TextClusters, WordsEndAtBlanksAndPathSeparators)
{
    const std::wstring_view path = L"C:\\Program Files\\T\u00e1mber";
    std::vector<std::size_t> forward;
    for (std::size_t at = 0; at < path.size();)
        forward.push_back(at = nextWordStart(path, at));
    EXPECT_EQ(forward, (std::vector<std::size_t>{1, 3, 11, 16, 17, 23}));
    std::vector<std::size_t> backward;
    for (std::size_t at = path.size(); at > 0;)
        backward.push_back(at = previousWordStart(path, at));
    EXPECT_EQ(backward, (std::vector<std::size_t>{17, 16, 11, 3, 1, 0}));
    EXPECT_EQ(wordAround(path, 5), (std::pair<std::size_t, std::size_t>{3, 10}));
    EXPECT_EQ(wordAround(path, 99), (std::pair<std::size_t, std::size_t>{17, 23}));
}

} // namespace
} // namespace vela
