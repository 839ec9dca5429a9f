#include "tools/showcase/skin_shelf.h"

#include "tools/skin_lint/document_lint.h"

#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/skin_catalog.h"

#include <algorithm>
#include <utility>

namespace showcase {

using vela::SkinDefinition;
using vela::lint::FileReport;
using vela::lint::Finding;
using vela::lint::Severity;

namespace {

std::vector<std::wstring> linesOf(const FileReport& report)
{
    std::vector<std::wstring> lines;
    const std::wstring text = vela::decodeUtf8(asText(report));
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

std::vector<SkinDefinition> skinsOf(std::wstring_view text)
{
    vela::JsonDocument document;
    return document.read(text) ? skinsFromDocument(document.root()) : std::vector<SkinDefinition>();
}

FileReport reportOn(const std::string& name, const std::optional<std::string>& bytes)
{
    FileReport report{name, {}, {}};
    if (bytes) {
        report.text = vela::decodeUtf8(*bytes);
        std::vector<vela::lint::KnownId> known;
        report.findings = lintDocument(report.text, name, known);
    } else {
        report.findings.push_back({Severity::Error, 0, {}, "the file cannot be read"});
    }
    return report;
}

} // namespace

SkinShelf::SkinShelf(std::string fileName, std::vector<SkinDefinition> catalogue)
    : fileName_(std::move(fileName)), catalogue_(std::move(catalogue))
{
    join();
}

bool SkinShelf::read(const std::optional<std::string>& bytes)
{
    FileReport report = reportOn(fileName_, bytes);
    std::vector<SkinDefinition> found = skinsOf(report.text);
    if (found.empty() && report.findings.empty())
        report.findings.push_back({Severity::Error, 0, {}, "there is no skin in the file"});
    lines_ = linesOf(report);
    const bool wrong = std::any_of(report.findings.begin(), report.findings.end(),
                                   [](const Finding& f) { return f.severity == Severity::Error; });
    current_ = !wrong;
    // A file that never was in order is shown as the program would show it.
    if (!current_ && (!fromFile_.empty() || found.empty()))
        return false;
    const bool first = fromFile_.empty();
    fromFile_ = std::move(found);
    join();
    if (first)
        index_ = 0; // whoever names a file wants to see it
    return true;
}

void SkinShelf::join()
{
    const std::wstring id = skins_.empty() ? std::wstring() : skin().id;
    skins_ = fromFile_;
    for (const SkinDefinition& skin : catalogue_) {
        if (!vela::findSkin(fromFile_, skin.id))
            skins_.push_back(skin);
    }
    if (skins_.empty())
        skins_.push_back(vela::builtInSkin());
    index_ = std::min(index_, skins_.size() - 1);
    choose(id);
}

bool SkinShelf::choose(std::wstring_view id)
{
    const SkinDefinition* const found = vela::findSkin(skins_, id);
    if (!found)
        return false;
    index_ = static_cast<std::size_t>(found - skins_.data());
    return true;
}

void SkinShelf::step(int by)
{
    const auto count = static_cast<int>(skins_.size());
    index_ = static_cast<std::size_t>(((static_cast<int>(index_) + by) % count + count) % count);
}

} // namespace showcase
