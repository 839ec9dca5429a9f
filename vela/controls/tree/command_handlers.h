// Who is told about commands at a window: one handler for an action, or for all of them. Handlers run in the
// order of their subscription until one marks the event handled; they may subscribe and unsubscribe
// meanwhile.
#pragma once

#include "vela/controls/tree/command_event.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vela {

class CommandHandlers {
public:
    using Handler = std::function<void(CommandEvent&)>;
    using Subscription = std::uint32_t;

    // An empty action stands for all of them.
    Subscription subscribe(std::wstring action, Handler handler);
    void unsubscribe(Subscription subscription);
    void dispatch(CommandEvent& event) const;

private:
    struct Entry {
        Subscription subscription;
        std::wstring action;
        std::shared_ptr<const Handler> handler; // shared with a dispatch that is under way
    };

    std::vector<Entry> entries_;
    Subscription last_ = 0;
};

} // namespace vela
