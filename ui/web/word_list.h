// The word list of the page, as the one file that there is.
#pragma once

// The script hands the bytes over before the program begins; without them there is no such file.
const char* WordListPath();
