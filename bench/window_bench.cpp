// The window, measured from outside: how soon it is painted, what it takes of memory, and whether
// it rests. Needs a display and Linux, and compares with Tanglet where that is installed.
//
//   window_bench FOLDER_OF_THE_BENCH PROGRAM WORD_LIST
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <list>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

extern char** environ; // NOLINT: posix_spawn asks for it

namespace {

using Words = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

// A program that is running; it ends with this. What it writes to the terminal can be read.
class Process {
public:
    explicit Process(Words words)
    {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, ends[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&files, ends[1], STDERR_FILENO);
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const int failed
            = posix_spawn(&id_, arguments[0], &files, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&files);
        close(ends[1]);
        output_ = ends[0];
        if (failed != 0)
            throw std::runtime_error("cannot start " + words[0]);
    }
    ~Process()
    {
        kill(id_, SIGTERM);
        waitpid(id_, nullptr, 0);
        close(output_);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    // Waits for output; "" when the program has ended without.
    std::string Read() const
    {
        char text[500];
        const ssize_t got = read(output_, text, sizeof text);
        return {text, text + std::max<ssize_t>(got, 0)};
    }

    // What has been written so far, without waiting.
    std::string ReadWhatIsThere() const
    {
        fcntl(output_, F_SETFL, O_NONBLOCK);
        return Read();
    }

    std::filesystem::path Folder() const { return "/proc/" + std::to_string(id_); }

private:
    pid_t id_ = 0;
    int output_ = 0;
};

double Median(std::vector<double> numbers)
{
    std::ranges::sort(numbers);
    return numbers[numbers.size() / 2];
}

// The number behind a name in one of the files of /proc.
double Field(const std::filesystem::path& file, const std::string& name)
{
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(name + ":"))
            return std::stod(line.substr(name.size() + 1));
    }
    throw std::runtime_error("a program has ended early: no " + file.string());
}

double MillisecondsToFirstFrame(const Words& window)
{
    const auto start = Clock::now();
    const Process process(window);
    process.Read();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// How often the program has waited for something and gone on, in all its threads.
double WakeUps(const Process& process)
{
    double all = 0;
    for (const auto& thread : std::filesystem::directory_iterator(process.Folder() / "task"))
        all += Field(thread.path() / "status", "voluntary_ctxt_switches");
    return all;
}

// The windows come up by turns, so that what else the machine does falls on both alike.
void PrintTimes(const Words& game, const Words& plain)
{
    constexpr int rounds = 31;
    std::puts("| What | The game | Plain window | Ratio |\n|:--|--:|--:|--:|");
    const auto with = [](Words words, const char* mode) {
        words.emplace_back(mode);
        return words;
    };
    const auto print = [&](const char* what, const auto& measure) {
        std::vector<double> ofGame;
        std::vector<double> ofPlain;
        for (int round = 0; round < rounds; ++round) {
            ofGame.push_back(measure(game));
            ofPlain.push_back(measure(plain));
        }
        std::printf("| %s | %.1f ms | %.1f ms | %.2f |\n", what, Median(ofGame), Median(ofPlain),
            Median(ofGame) / Median(ofPlain));
    };
    print("From the start of the process to the first painted frame",
        [&](const Words& window) { return MillisecondsToFirstFrame(with(window, "first-frame")); });
    print("One redraw of the whole window, a game on view", [&](const Words& window) {
        return std::stod(Process(with(window, "redraw")).Read()) / 1000;
    });
}

// A program that is left alone. The programs to compare stand beside each other, so that what they
// share is shared alike.
class AtRest {
public:
    AtRest(std::string name, Words words)
        : name_(std::move(name))
        , process_(std::move(words))
    {
    }

    void BeginToCount() { wakeUpsBefore_ = WakeUps(process_); }

    void Print() const
    {
        const auto maps = process_.Folder() / "smaps_rollup";
        const auto mebibytes = [&maps](const char* name) { return Field(maps, name) / 1024; };
        std::printf("| %s | %.1f MiB | %.1f MiB | %.1f MiB | %.0f | %zu bytes |\n", name_.c_str(),
            mebibytes("Rss"), mebibytes("Pss"),
            mebibytes("Private_Clean") + mebibytes("Private_Dirty"),
            WakeUps(process_) - wakeUpsBefore_, process_.ReadWhatIsThere().size());
    }

private:
    std::string name_;
    Process process_;
    double wakeUpsBefore_ = 0;
};

void PrintMemoryAndRest(const std::string& when, const Words& game, const Words& plain)
{
    std::list<AtRest> programs;
    programs.emplace_back("The game, " + when, game);
    programs.emplace_back("Plain window, " + when, plain);
    if (const std::string tanglet = "/usr/games/tanglet"; std::filesystem::exists(tanglet))
        programs.emplace_back("Tanglet, start screen", Words{tanglet});
    std::this_thread::sleep_for(std::chrono::seconds(5));
    for (AtRest& program : programs)
        program.BeginToCount();
    std::this_thread::sleep_for(std::chrono::seconds(10));
    for (const AtRest& program : programs)
        program.Print();
}

void MeasureWindow(const std::string& folder, const std::string& program, const std::string& list)
{
    const Words game{folder + "/game_window", list};
    const Words plain{folder + "/empty_window"};
    PrintTimes(game, plain);

    std::puts(
        "\n| Program | Resident | Proportional (PSS) | Private | Wake-ups in ten idle seconds "
        "| Written to the terminal |\n|:--|--:|--:|--:|--:|--:|");
    PrintMemoryAndRest("start screen", {program}, {plain[0], "stay"});
    PrintMemoryAndRest("a game on view", {game[0], game[1], "play"}, {plain[0], "play"});
    std::printf("\n%s", Process({game[0], game[1], "clicks"}).Read().c_str());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("usage: window_bench FOLDER_OF_THE_BENCH PROGRAM WORD_LIST\n", stderr);
        return 1;
    }
    // The programs find a room of their own, and no settings.
    char room[] = "/tmp/window-bench-XXXXXX";
    if (mkdtemp(room) == nullptr)
        return 1;
    for (const char* name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        setenv(name, room, 1);
    int status = 0;
    try {
        MeasureWindow(argv[1], argv[2], argv[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    std::filesystem::remove_all(room);
    return status;
}
