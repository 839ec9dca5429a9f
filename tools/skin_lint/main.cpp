// skin_lint [--json] FILE...   what the program would silently pass over in skin documents; exit code 0 or 1
// skin_lint --schema           the JSON Schema of skin documents, for editors
// skin_lint --keys             the reference of all keys, as Markdown
#include "tools/skin_lint/document_lint.h"
#include "tools/skin_lint/key_reference.h"
#include "tools/skin_lint/schema.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/skin_files.h"

#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

namespace {

using namespace vela;
using namespace vela::lint;

std::optional<std::string> bytesOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return file.bad() ? std::nullopt : std::optional(std::move(bytes));
}

FileReport lintFile(const char* path, std::vector<KnownId>& known)
{
    FileReport report{path, {}, {}};
    const std::optional<std::string> bytes = bytesOf(path);
    if (!bytes)
        report.findings.push_back({Severity::Error, 0, {}, "the file cannot be read"});
    else if (bytes->size() > kMaxSkinFileSize)
        report.findings.push_back({Severity::Error,
                                   0,
                                   {},
                                   "the file is larger than " + std::to_string(kMaxSkinFileSize >> 20) +
                                       " MB and would not be read"});
    else
        report.findings = lintDocument(report.text = decodeUtf8(*bytes), report.file, known);
    return report;
}

int usage()
{
    std::cerr << "usage: skin_lint [--json] FILE...\n       skin_lint --schema | --keys\n";
    return 2;
}

// Options that print something made from the descriptions of skins, and nothing else.
constexpr struct {
    const char* option;
    std::string (*make)();
} kPrinted[] = {{"--schema", skinSchema}, {"--keys", keyReference}};

} // namespace

int main(int argc, char** argv)
{
    bool json = false;
    std::vector<const char*> files;
    for (int i = 1; i < argc; ++i) {
        for (const auto& printed : kPrinted) {
            if (std::strcmp(argv[i], printed.option) == 0) {
                std::cout << printed.make();
                return 0;
            }
        }
        if (std::strcmp(argv[i], "--json") == 0)
            json = true;
        else if (argv[i][0] == '-')
            return usage();
        else
            files.push_back(argv[i]);
    }
    if (files.empty())
        return usage();

    std::vector<KnownId> known;
    std::vector<FileReport> reports;
    bool clean = true;
    for (const char* file : files) {
        reports.push_back(lintFile(file, known));
        clean = clean && reports.back().findings.empty();
    }
    if (json)
        std::cout << asJson(reports);
    for (const FileReport& report : reports)
        std::cout << (json ? std::string() : asText(report));
    return clean ? 0 : 1;
}
