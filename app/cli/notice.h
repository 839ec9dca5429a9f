// What the setup tells its user in a window of its own.
#pragma once

#include <string>
#include <string_view>

namespace setup {

struct Notice {
    std::wstring_view title; // still to be completed by setupTitle
    std::wstring body;
    bool danger = false;
};

// Where notices appear. A run that must show none never asks it, and then nothing is prepared for windows.
class NoticeScreen {
public:
    NoticeScreen() = default;
    NoticeScreen(const NoticeScreen&) = delete;
    NoticeScreen& operator=(const NoticeScreen&) = delete;
    virtual ~NoticeScreen() = default;

    virtual void showNotice(const Notice& notice) = 0; // returns when it is closed
};

} // namespace setup
