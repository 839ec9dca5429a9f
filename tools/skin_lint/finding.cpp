#include "tools/skin_lint/finding.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace vela::lint {
namespace {

const char* nameOf(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

} // namespace

TextPosition positionAt(std::wstring_view text, std::size_t offset)
{
    const std::wstring_view before = text.substr(0, std::min(offset, text.size()));
    const std::size_t lineStart = before.rfind(L'\n') + 1; // npos + 1 is 0
    const auto lines = std::count(before.begin(), before.end(), L'\n');
    return {static_cast<std::size_t>(lines) + 1, before.size() - lineStart + 1};
}

std::string asText(const FileReport& report)
{
    std::string lines;
    for (const Finding& finding : report.findings) {
        const TextPosition at = positionAt(report.text, finding.offset);
        lines += report.file + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) + ": " +
                 nameOf(finding.severity) + ": " + finding.message;
        lines += finding.path.empty() ? "\n" : " [" + finding.path + "]\n";
    }
    return lines;
}

std::string asJson(const std::vector<FileReport>& reports)
{
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    for (const FileReport& report : reports) {
        for (const Finding& finding : report.findings) {
            const TextPosition at = positionAt(report.text, finding.offset);
            all.push_back({{"file", report.file},
                           {"line", at.line},
                           {"column", at.column},
                           {"severity", nameOf(finding.severity)},
                           {"path", finding.path},
                           {"message", finding.message}});
        }
    }
    return all.dump(2) + "\n";
}

} // namespace vela::lint
