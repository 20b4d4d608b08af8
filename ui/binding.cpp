#include "ui/binding.h"

namespace {

constexpr BoundField boundFields[] = {
    {"Text1", &Board::Text1},
    {"Text2", &Board::Text2},
    {"SwapLetters", &Board::SwapLetters},
    {"MyLetters", &Board::MyLetters},
    {"Word1", &Board::Word1},
    {"Word2", &Board::Word2},
    {"Word3", &Board::Word3},
    {"Text6", &Board::Text6},
    {"Text7", &Board::Text7},
    {"Text8", &Board::Text8},
    {"YourScore", &Board::YourScore},
    {"MyScore", &Board::MyScore},
    {"Text9", &Board::Text9},
    {"List1", &Board::List1},
    {"Check1", &Board::Check1},
    {"Option1", &Board::Level},
    {"Frame1", &Board::Frame1},
    {"Command2", &Board::Command2},
    {"Frame2", &Board::Frame2},
    {"Frame3", &Board::Frame3},
    {"Frame4", &Board::Frame4},
    {"Frame5", &Board::Frame5},
    {"Frame7", &Board::Frame7},
    {"Frame9", &Board::Frame9},
    {"Label5", &Board::Label5},
};

} // namespace

std::span<const BoundField> BoundFields()
{
    return boundFields;
}

const Field* FindField(std::string_view control)
{
    for (const BoundField& field : boundFields)
        if (control == field.Control)
            return &field.Shows;
    return nullptr;
}
