#include "ui/spoken.h"

#include "ui/look.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <algorithm>

namespace {

std::string WithNumber(std::string words, int number)
{
    const std::size_t place = words.find("%1");
    return place == std::string::npos ? words : words.replace(place, 2, std::to_string(number));
}

bool IsLetterOrNumber(Kind kind)
{
    return kind == Kind::LetterTile || kind == Kind::ShownBox;
}

} // namespace

std::string SpokenName(const Part& part, const Look& look)
{
    const Control& row = *part.Row;
    std::string words = WithNumber(*row.Spoken == '\0' ? row.Caption : row.Spoken, part.Number);
    if (look.Marked == Mark::Known)
        words += ", known";
    if (look.Marked == Mark::Foreign)
        words += ", none of the letters";
    if (!IsLetterOrNumber(row.Is))
        return words;
    const std::string text
        = look.Text.substr(std::min(look.Text.find_first_not_of(' '), look.Text.size()));
    words += text.empty() ? row.SpokenWhenEmpty : ": " + text + row.SpokenWhenFilled;
    if (!look.Faint.empty())
        words += ", " + look.Faint + " is in your hand";
    return words;
}

std::string SpokenHelp(const Part& part)
{
    return part.Number <= 1 ? part.Row->SpokenHelp : "";
}
