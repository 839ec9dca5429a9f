// Which keys may stand at one place of a skin document, and what their values may be: the field tables seen
// from a path inside the document. The lint walks it beside a document, the schema writer walks it alone, so
// both say what the readers do.
#pragma once

#include "vela/theme/fields/field_reader.h"
#include "vela/theme/fields/fields.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela::lint {

// Fields that hold one text, and fields whose value is an object of keys of their own.
bool isLeaf(FieldKind kind) noexcept;

// A field, and what is left of the key that leads to it: empty when its value stands right here.
struct Candidate {
    const Field* field;
    std::string rest;
    KeyStyle keys;
};

class KeyScope {
public:
    KeyScope() = default;
    KeyScope(const FieldTable& table, KeyStyle keys) { addTable(table, keys); }

    // The scope of the value under a member; empty when no key begins with that name.
    KeyScope below(std::wstring_view member) const;

    bool empty() const noexcept { return candidates_.empty() && tables_.empty(); }

    // Fields whose text may stand here.
    std::vector<const Field*> leaves() const;

    // The tables whose keys an object here may hold.
    const std::vector<const FieldTable*>& tables() const noexcept { return tables_; }

    // The distinct first segments of the keys an object here may hold, as the tables spell them.
    std::vector<std::string> keyNames() const;

private:
    void add(const Field& field, std::string_view rest, KeyStyle keys);
    void addTable(const FieldTable& table, KeyStyle keys);
    void addKey(const Field& field, std::string_view key, KeyStyle keys);

    std::vector<Candidate> candidates_;
    std::vector<const FieldTable*> tables_;
};

} // namespace vela::lint
