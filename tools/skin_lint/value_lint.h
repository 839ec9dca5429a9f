// Checks one value of a document, with all that lies below it, against the keys that may stand there.
#pragma once

#include "tools/skin_lint/finding.h"
#include "tools/skin_lint/key_scope.h"
#include "vela/theme/document/json.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::lint {

class ValueLint {
public:
    explicit ValueLint(std::vector<Finding>& findings) : findings_(findings) {}

    // `extraKeys` name a style to start from and are allowed in the object itself beside those of the scope;
    // they are separated by blanks.
    void check(const JsonValue& value, const KeyScope& scope, const std::string& path,
               std::string_view extraKeys = {});

    // The name of a style to start from; empty, and reported, when the value is no text.
    std::optional<std::wstring_view> checkStyleName(const JsonValue& value, const std::string& path);

    void report(const JsonValue& value, const std::string& path, std::string message,
                Severity severity = Severity::Error);
    void reportUnknownKey(const JsonMember& member, const std::string& path, const std::string& what,
                          const std::vector<std::string>& known);

private:
    void checkLeaf(const JsonValue& value, const KeyScope& scope, const std::string& path);
    void checkMembers(const JsonValue& value, const KeyScope& scope, const std::string& path,
                      std::string_view extraKeys);

    std::vector<Finding>& findings_;
};

// The path of a member or an element below a path.
std::string memberPath(const std::string& path, std::wstring_view key);
std::string elementPath(const std::string& path, std::size_t index);

} // namespace vela::lint
