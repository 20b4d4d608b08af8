// Which field of the board each control shows: the one of the same name.
#pragma once

#include "game/board.h"

#include <span>
#include <string_view>
#include <variant>

using Field = std::variant<LetterRow Board::*, NumberBox Board::*, Frame Board::*, Label Board::*,
    Panel Board::*, WordList Board::*, std::int16_t Board::*>;

struct BoundField {
    std::string_view Control;
    Field Shows;
};

std::span<const BoundField> BoundFields();

// The field of that control, or nullptr when nothing of it changes with the board, beside what the
// table of clicks says of it.
const Field* FindField(std::string_view control);
