// The document that the program carries, as the benchmarks read it.
#pragma once

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace bench {

inline const std::string& defaultDocument()
{
    static const std::string bytes = [] {
        std::ifstream file(TAMBER_SOURCE_DIR "/resources/00-vela-default-skins.json", std::ios::binary);
        std::string read{std::istreambuf_iterator<char>(file), {}};
        if (read.empty()) {
            std::cerr << "the default skins document is missing\n";
            std::exit(1);
        }
        return read;
    }();
    return bytes;
}

} // namespace bench
