// The skins that travel inside the setup, as their document has them.
#pragma once

#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/skin_document.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace vela {

inline std::string documentBytes()
{
    std::ifstream file(TAMBER_SOURCE_DIR "/resources/00-vela-default-skins.json", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline const JsonValue& documentRoot()
{
    static const JsonDocument document = [] {
        JsonDocument read;
        EXPECT_TRUE(read.read(decodeUtf8(documentBytes()))) << read.error().explanation;
        return read;
    }();
    return document.root();
}

inline const std::vector<SkinDefinition>& defaultSkins()
{
    static const std::vector<SkinDefinition> skins = skinsFromDocument(documentRoot());
    return skins;
}

} // namespace vela
