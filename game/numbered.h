// Slots that are numbered the way the game counts them: boxes 1 to 6, ledger slots 0 to 250.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

template <typename T, int First, int Last> class Numbered {
public:
    // The slot of that number, First to Last. A number outside is a mistake of ours and stops the
    // program, in release builds too.
    constexpr T& operator()(int number)
    {
        assert(number >= First && number <= Last);
        return slots_[static_cast<std::size_t>(number - First)];
    }
    constexpr const T& operator()(int number) const
    {
        assert(number >= First && number <= Last);
        return slots_[static_cast<std::size_t>(number - First)];
    }

    constexpr auto begin() { return slots_.begin(); }
    constexpr auto end() { return slots_.end(); }
    constexpr auto begin() const { return slots_.begin(); }
    constexpr auto end() const { return slots_.end(); }

private:
    std::array<T, static_cast<std::size_t>(Last - First + 1)> slots_{};
};
