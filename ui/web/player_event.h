// What the player has done on the page, kept until it is its turn.
#pragma once

#include "ui/keys.h"

#include <string>
#include <vector>

struct Part;

struct PlayerEvent {
    enum class Kind { Click, Press, Type, Edit, Erase, Write, Tick, Untick, BeginDrag, EndDrag };

    Kind Is;
    const Part* At = nullptr;
    KeyPress Pressed{};
    std::vector<std::string> Texts{};
};
