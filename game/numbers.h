// Numbers as the boxes write and read them: whole ones, as large as a double holds each of them.
#pragma once

#include <string>
#include <string_view>

// The number that the whole text spells; anything else is a mistake of ours.
double NumberOf(std::string_view text);

// The number that the text begins with, blanks in front skipped; 0 when there is none.
double LeadingNumberOf(std::string_view text);

// A whole number as bare digits, with a minus sign in front of a negative one: "150".
std::string PlainForm(double number);

// The plain form with a blank in the place of a plus sign: " 150".
std::string PaddedForm(double number);
