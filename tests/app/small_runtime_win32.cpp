// The parts of the C++ library that app/small_runtime_win32.cpp replaces, linked as the finished file links
// them: a test program of its own, because the test library brings originals along. Its exit code is the
// number of checks that failed.
#include "vela/worker_thread_win32.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace {

int failures = 0;

void check(bool holds, const char* what)
{
    if (holds)
        return;
    std::puts(what);
    ++failures;
}

using Threads = std::vector<std::unique_ptr<vela::WorkerThread>>;

void inThreads(int count, const std::function<void()>& work)
{
    Threads threads;
    for (int i = 0; i < count; ++i)
        threads.push_back(std::make_unique<vela::WorkerThread>(work));
}

std::atomic<int> attempts = 0;
std::atomic<int> seenUnmade = 0;
std::atomic<int> refusals = 0;

// Slow to make, and the first time not at all.
struct Shared {
    Shared()
    {
        ::Sleep(50);
        if (++attempts == 1)
            throw std::exception();
        made = true;
    }
    std::atomic<bool> made = false;
};

void useShared()
{
    try {
        static const Shared shared;
        seenUnmade += shared.made ? 0 : 1;
    } catch (const std::exception&) {
        ++refusals;
    }
}

void makesStaticObjectsOnce()
{
    inThreads(8, useShared);
    check(attempts == 2, "A static object is made again only after its making has failed.");
    check(refusals == 1, "Only the thread that tried hears of the failed making.");
    check(seenUnmade == 0, "Nobody sees a static object before it is made.");
}

// Looks, while its own thread unwinds, at what another thread thinks.
struct Unwound {
    ~Unwound()
    {
        check(std::uncaught_exceptions() == 1, "A thread knows that it unwinds.");
        int elsewhere = -1;
        inThreads(1, [&elsewhere] { elsewhere = std::uncaught_exceptions(); });
        check(elsewhere == 0, "Another thread's exceptions are its own.");
    }
};

void keepsExceptionsByThread()
{
    std::atomic<int> caughtTwice = 0;
    inThreads(4, [&caughtTwice] {
        try {
            try {
                throw 1;
            } catch (int) {
                ::Sleep(20);
                throw;
            }
        } catch (int value) {
            caughtTwice += value;
        }
    });
    check(caughtTwice == 4, "An exception that is thrown again arrives in its own thread.");
    try {
        const Unwound unwound;
        throw std::exception();
    } catch (const std::exception&) {
        check(std::uncaught_exceptions() == 0, "A caught exception is no longer uncaught.");
    }
}

void throwsWhatContainersRefuse()
{
    int caught = 0;
    try {
        static_cast<void>(std::vector<int>().at(0));
    } catch (const std::exception&) {
        ++caught;
    }
    try {
        std::vector<char> large(std::vector<char>().max_size());
    } catch (const std::exception&) {
        ++caught;
    }
    check(caught == 2, "Containers refuse the impossible with an exception.");
}

void measuresTime()
{
    constexpr std::chrono::milliseconds kPause(100);
    constexpr std::chrono::milliseconds kTick(16); // what the system's count advances by
    const DWORD ticks = ::GetTickCount();
    const auto start = std::chrono::steady_clock::now();
    ::Sleep(static_cast<DWORD>(kPause.count()));
    const auto spent = std::chrono::steady_clock::now() - start;
    const std::chrono::milliseconds longest(::GetTickCount() - ticks);
    check(spent >= kPause - kTick && spent <= longest + kTick, "The steady clock agrees with the system's.");
}

} // namespace

int main()
{
    makesStaticObjectsOnce();
    keepsExceptionsByThread();
    throwsWhatContainersRefuse();
    measuresTime();
    return failures;
}
