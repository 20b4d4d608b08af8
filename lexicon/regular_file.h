// Opens a file to be read whole.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Nothing when the path leads to no file that can be opened and has an end.
File OpenRegularFile(const std::filesystem::path& path);
