#include "vela/controls/tree/command_handlers.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(CommandHandlersTest, TheFirstToHandleAnEventIsTheLastToSeeIt)
{
    CommandHandlers handlers;
    std::wstring seen;
    handlers.subscribe(L"", [&](CommandEvent&) { seen += L'*'; });
    const auto closing = handlers.subscribe(L"close", [&](CommandEvent& event) {
        seen += L'c';
        event.handled = true;
    });
    handlers.subscribe(L"", [&](CommandEvent&) { seen += L'!'; });
    CommandEvent close;
    close.action = L"close";
    handlers.dispatch(close);
    CommandEvent other;
    other.action = L"ok";
    handlers.dispatch(other);
    EXPECT_EQ(seen, L"*c*!");

    handlers.unsubscribe(closing);
    // A handler may add and remove handlers while it runs.
    handlers.subscribe(L"close", [&](CommandEvent&) { handlers = CommandHandlers(); });
    close.handled = false;
    handlers.dispatch(close);
    EXPECT_EQ(seen, L"*c*!*!");
}

} // namespace
} // namespace vela
