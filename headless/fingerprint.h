// Sums lines up in one number (FNV-1a, 64 bits): a change in any of them changes it.
#pragma once

#include <cstdint>
#include <string_view>

class Fingerprint {
public:
    void Add(std::string_view line)
    {
        for (const char letter : line)
            Take(static_cast<unsigned char>(letter));
        Take('\n');
    }
    std::uint64_t Value() const { return value_; }

private:
    void Take(unsigned char byte) { value_ = (value_ ^ byte) * 0x100000001B3; }

    std::uint64_t value_ = 0xCBF29CE484222325;
};
