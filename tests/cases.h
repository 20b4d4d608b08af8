// Cases in text, which headless/script.h tells how to read. One that fails shows what happened in
// the same form.
#pragma once

#include "headless/script.h"

#include <ostream>
#include <string>
#include <vector>

struct Case : Script { };

// What all of them begin with, as a script.
extern const char* const beginningOfCases;

void PrintTo(const Case& held, std::ostream* out);
std::string NameOf(const Case& held); // as a test may be called

// Of all the files in that folder below tests/cases/; "" for the rules.
std::vector<Case> ReadCases(const std::string& folder, EventWords more = {});

void ExpectToHold(HeadlessGame& game, const Case& held);
