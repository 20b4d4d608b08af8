// The words for the ear: what a screen reader says of each control.
#pragma once

#include <string>

struct Look;
struct Part;

// The name; of a box with what it shows: "Your letter 3 of 6: p". That a box is disabled is for its
// state to say.
std::string SpokenName(const Part& part, const Look& look);

// What the control does, which the first box of a row says for all.
std::string SpokenHelp(const Part& part);
