// A machine that does nothing but write down what the setup asked of it, and that fails where it is told to.
// Its screen belongs to it, so that a notice has its place among the calls.
#pragma once

#include "app/cli/notice.h"
#include "app/effects/setup_effects.h"

#include <algorithm>
#include <map>
#include <utility>

namespace setup::test {

using Calls = std::vector<std::wstring>;

class RecordingEffects final : public SetupEffects, public NoticeScreen {
public:
    // What the machine is like.
    std::vector<std::wstring> products;
    std::vector<std::wstring> files;
    std::map<KnownFolder, std::wstring> folders{{KnownFolder::Desktop, L"D:\\Desktop"},
                                                {KnownFolder::Startup, L"D:\\Startup"}};
    std::optional<ProductVersion> installedVersion = ProductVersion{TAMBER_VERSION_NUMBERS, 0};
    std::vector<ProcessEntry> processes;
    bool windowless = false;
    bool deaf = false; // running applications do not close when asked

    // What fails: the call that begins with this text, with this error (an exit code for the installer).
    std::wstring failingCall;
    WindowsError failure = kNoError;
    PackageFault packageFault = PackageFault::Absent; // of a failing extraction

    // What was seen.
    Calls calls;
    Calls log;
    std::vector<Notice> notices;
    std::vector<ShellLink> links;

    std::uint32_t ownProcessId() override { return 4242; }
    std::wstring programFolder() override { return L"C:\\Downloads"; }
    std::wstring tempFolder() override { return L"C:\\Temp\\"; }
    std::wstring knownFolder(KnownFolder folder) override { return folders[folder]; }
    std::wstring environmentVariable(const wchar_t* name) override
    {
        return L"%" + std::wstring(name) + L"%";
    }
    bool fileExists(const std::wstring& path) override
    {
        return std::find(files.begin(), files.end(), path) != files.end();
    }
    void writeLogLine(const std::wstring& line) override { log.push_back(line); }
    void showNotice(const Notice& notice) override
    {
        call(L"notice ", notice.title);
        notices.push_back(notice);
    }

    WindowsOutcome<std::wstring> relatedProduct(std::uint32_t index) override
    {
        if (index >= products.size())
            return vela::Failure{kErrorNoMoreItems};
        // An entry without a code stands for one that the installer cannot read.
        if (products[index].empty())
            return vela::Failure{1610U};
        return products[index];
    }
    vela::Outcome<vela::Done, PackageFailure> extractPackage(const std::wstring& target) override
    {
        const WindowsError error = call(L"extract ", target);
        if (error != kNoError)
            return vela::Failure{PackageFailure{packageFault, error}};
        return vela::Done{};
    }
    WindowsOutcome<std::unique_ptr<PackagePin>> pinPackage(const std::wstring& path) override
    {
        const WindowsError error = call(L"pin ", path);
        if (error != kNoError)
            return vela::Failure{error};
        return std::make_unique<Pin>(*this);
    }
    WindowsError writeSkins(const std::wstring& target) override { return call(L"skins ", target); }
    WindowsOutcome<std::uint32_t> runInstaller(const std::wstring& parameters) override
    {
        const WindowsError code = call(L"msiexec ", parameters);
        if (code == kErrorNotStarted)
            return vela::Failure{code};
        return code;
    }

    WindowsError createFolders(const std::wstring& folder) override { return call(L"create ", folder); }
    WindowsError copySetup(const std::wstring& target) override { return call(L"copy ", target); }
    std::int32_t createShellLink(const ShellLink& link) override
    {
        links.push_back(link);
        return static_cast<std::int32_t>(call(L"link ", link.link));
    }
    WindowsError deleteFile(const std::wstring& path) override { return call(L"delete ", path); }
    void notifyShellChanged() override { call(L"notify", L""); }
    std::optional<ProductVersion> productVersion(const std::wstring& path) override
    {
        return call(L"version ", path) == kNoError ? installedVersion : std::nullopt;
    }
    WindowsError startHidden(const std::wstring& commandLine, const std::wstring& folder) override
    {
        return call(L"hidden ", commandLine + L" in " + folder);
    }
    WindowsError startVisible(const std::wstring& program, const std::wstring& folder) override
    {
        return call(L"visible ", program + L" in " + folder);
    }

    std::vector<ProcessEntry> runningProcesses() override
    {
        call(L"processes", L"");
        return processes;
    }
    WindowsOutcome<std::unique_ptr<RunningProcess>> openProcess(std::uint32_t id,
                                                                ProcessAccess access) override
    {
        const WindowsError error =
            call(access == ProcessAccess::Wait ? L"open " : L"reopen ", std::to_wstring(id));
        if (error != kNoError)
            return vela::Failure{error};
        return std::make_unique<Process>(*this);
    }

    static constexpr WindowsError kErrorNotStarted = 1223;

private:
    struct Pin final : PackagePin {
        explicit Pin(RecordingEffects& effects) : owner(effects) {}
        ~Pin() override { owner.call(L"unpin", L""); }
        RecordingEffects& owner;
    };

    struct Process final : RunningProcess {
        explicit Process(RecordingEffects& effects) : owner(effects) {}
        bool postToWindows(std::uint32_t message) override
        {
            owner.call(L"post ", std::to_wstring(message));
            return !owner.windowless;
        }
        WaitResult wait(std::uint32_t milliseconds) override
        {
            if (owner.call(L"wait ", std::to_wstring(milliseconds)) != kNoError)
                return WaitResult::Failed;
            return owner.deaf ? WaitResult::TimedOut : WaitResult::Ended;
        }
        WindowsError terminate() override { return owner.call(L"terminate", L""); }
        RecordingEffects& owner;
    };

    WindowsError call(std::wstring_view what, std::wstring_view about)
    {
        calls.push_back(std::wstring(what).append(about));
        return !failingCall.empty() && calls.back().starts_with(failingCall) ? failure : kNoError;
    }
};

} // namespace setup::test
