#include "vela/controls/tree/command_handlers.h"

#include <algorithm>
#include <utility>

namespace vela {

CommandHandlers::Subscription CommandHandlers::subscribe(std::wstring action, Handler handler)
{
    entries_.push_back({++last_, std::move(action), std::make_shared<const Handler>(std::move(handler))});
    return last_;
}

void CommandHandlers::unsubscribe(Subscription subscription)
{
    std::erase_if(entries_,
                  [subscription](const Entry& entry) { return entry.subscription == subscription; });
}

void CommandHandlers::dispatch(CommandEvent& event) const
{
    std::vector<std::shared_ptr<const Handler>> called;
    for (const Entry& entry : entries_) {
        if (entry.action.empty() || entry.action == event.action)
            called.push_back(entry.handler);
    }
    for (const auto& handler : called) {
        if (event.handled)
            return;
        (*handler)(event);
    }
}

} // namespace vela
