#include "vela/worker_thread_win32.h"

#include <process.h>

namespace vela {
namespace {

unsigned __stdcall runWork(void* work)
{
    (*static_cast<const std::function<void()>*>(work))();
    return 0;
}

} // namespace

// The C runtime's own call, because the runtime keeps data for each thread.
WorkerThread::WorkerThread(std::function<void()> work)
    : work_(std::move(work)),
      thread_(reinterpret_cast<HANDLE>(::_beginthreadex(nullptr, 0, runWork, &work_, 0, nullptr)))
{
}

WorkerThread::~WorkerThread()
{
    if (thread_)
        ::WaitForSingleObject(thread_.get(), INFINITE);
}

} // namespace vela
