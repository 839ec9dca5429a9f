// What the lint has to say about one place of a document.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vela::lint {

// An error is what the program passes over, a warning what it reads but nobody can want.
enum class Severity : std::uint8_t { Error, Warning };

struct Finding {
    Severity severity = Severity::Error;
    std::uint32_t offset = 0; // in units of the wide text
    std::string path;         // of the value: skins[0].styles.button
    std::string message;
};

struct TextPosition {
    std::size_t line = 1; // both count from 1
    std::size_t column = 1;
};

TextPosition positionAt(std::wstring_view text, std::size_t offset);

struct FileReport {
    std::string file;
    std::wstring text;
    std::vector<Finding> findings;
};

// file:line:column: error: message [path], a line for each, as compilers write them.
std::string asText(const FileReport& report);

// An array of objects with file, line, column, severity, path and message.
std::string asJson(const std::vector<FileReport>& reports);

} // namespace vela::lint
