#include "lexicon/regular_file.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

File OpenRegularFile(const std::filesystem::path& path)
{
#ifdef _WIN32
    std::error_code error;
    const bool regular = std::filesystem::is_regular_file(path, error);
    return {regular ? _wfopen(path.c_str(), L"rb") : nullptr, std::fclose};
#else
    // What is opened is looked at, and not what stood there before; and nothing waits for a writer.
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(descriptor);
        return {nullptr, std::fclose};
    }
    return {descriptor >= 0 ? fdopen(descriptor, "rb") : nullptr, std::fclose};
#endif
}
