// write_steps [SESSIONS]: plays every case, or so many random sessions, without a window. Writes
// down each step of the player, what is asked and answered, and what is on view afterwards, for a
// page to do the same: a line each, its fields set apart by tabs. player.js reads them.
#include "game/clicks.h"
#include "headless/desk.h"
#include "tests/cases.h"
#include "tools/search/sessions.h"
#include "ui/message.h"
#include "ui/part.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace {

// The bytes of random sessions are letters of Latin-1.
std::string AsUtf8(const std::string& bytes)
{
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= 0x80)
            text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(code >= 0x80 ? 0x80 | (code & 0x3F) : code);
    }
    return text;
}

class Writer : public Desk {
public:
    Writer(std::string name, bool random)
        : Desk(QUORVEL_WORD_LIST)
        , name_(std::move(name))
        , random_(random)
        , looks_(::Parts().size())
    {
        Write("case", name_);
        tell = [this](const std::string& what) { Told(what); };
    }

    void Run(const ScriptLine& line)
    {
        const std::string verb = line.text.substr(0, line.text.find(' '));
        settles_ = verb != "do";
        if (line.run)
            line.run(*this);
        if (verb == "board" || verb == "seed")
            Write(verb.c_str(), line.text.substr(verb.size() + 1));
        else if (verb == "draws")
            Write("draws", DrawsText());
        else if (verb == "list")
            WriteList();
    }

    void PressKey(const Stroke& stroke) override
    {
        Step([&] { Desk::PressKey(stroke); }, "key", stroke.Key, stroke.Held, stroke.Shift);
        if (depth_ == 0) // each of a walk
            WriteShown();
    }
    void PressMouse(const Part& part) override
    {
        Step([&] { Desk::PressMouse(part); }, "mouse", IndexOf(part));
    }
    void TypeLetter(const std::string& letter) override
    {
        Step([&] { Desk::TypeLetter(letter); }, "type", letter);
    }
    void Paste(const std::string& text) override
    {
        Step([&] { Desk::Paste(text); }, "paste", text);
    }
    void Type(std::string_view row, int index, const std::string& text) override
    {
        const std::string typed = random_ ? AsUtf8(text) : text;
        Step([&] { Desk::Type(row, index, typed); }, "write", IndexOf(FindPart(row, index)), typed);
    }
    void Tick(bool ticked) override
    {
        Step([&] { Desk::Tick(ticked); }, "tick", IndexOf(FindPart("Check1")), ticked);
    }
    void Focus(const Part& part) override
    {
        if (depth_ > 0 || settles_) // the game moves it
            Desk::Focus(part);
        else
            Step([&] { Desk::Focus(part); }, "focus", IndexOf(part));
    }
    bool BeginDrag(const Part& part) override
    {
        bool begun = false;
        Step([&] { begun = Desk::BeginDrag(part); }, "drag", IndexOf(part));
        return begun;
    }
    void EndDrag(const Part* part) override
    {
        Step([&] { Desk::EndDrag(part); }, "drop",
            part == nullptr ? -1 : static_cast<int>(IndexOf(*part)));
    }
    void PlayComputersGo() override
    {
        Step([&] { Desk::PlayComputersGo(); }, "computer");
    }

protected:
    // A page that is loaded anew knows nothing of the draws before.
    void StartProgram() override
    {
        depth_ = 0;
        looks_.assign(::Parts().size(), {});
        Write("case", name_);
        if (random_)
            platform = HeadlessPlatform(++restarts_);
        settles_ = true;
        Desk::StartProgram();
        settles_ = false;
        if (random_)
            Write("seed", restarts_);
        else
            Write("draws", DrawsText());
        if (game.lexicon != QUORVEL_WORD_LIST)
            WriteList();
    }
    void DeliverClick(const ::Click& click, std::int16_t index) override
    {
        Step([&] { Desk::DeliverClick(click, index); }, "click",
            IndexOf(FindPart(click.Control, index)));
    }
    void AfterEvent() override
    {
        Desk::AfterEvent();
        WriteShown();
    }
    void PaintNow() override
    {
        WriteShown();
        Write("repaint");
        Desk::PaintNow();
        Write("painted");
    }
    Answer Ask(const Message& message) override
    {
        WriteShown();
        GiveUpWaiting();
        Write("message", message.Title, message.Text, message.Asks);
        const Answer answer = Desk::Ask(message);
        Write("answer", answer == Answer::Yes);
        return answer;
    }
    void Say(const std::string& text) override
    {
        if (!settles_)
            Write("says", text);
        Desk::Say(text);
    }

private:
    void Told(const std::string& what)
    {
        constexpr std::string_view refused = "refused ";
        if (what == "end") {
            Write("end");
        } else if (what.starts_with(refused)) {
            const Part& part = ReadPart(what.substr(refused.size()));
            if (!IsEnabled(part, board) || !IsOnView(part, board))
                Write("click", IndexOf(part));
        }
    }

    template <typename... Fields>
    void Step(const std::function<void()>& play, const char* step, const Fields&... fields)
    {
        Write(step, fields...);
        ++depth_;
        play();
        --depth_;
    }

    static void WriteField(const std::string& text)
    {
        std::putchar('\t');
        for (const char letter : text)
            letter == '\n' ? std::fputs("\\n", stdout) : std::putchar(letter);
    }
    template <typename Number> static void WriteField(Number number)
    {
        WriteField(std::to_string(number));
    }

    template <typename... Fields> void Write(const char* step, const Fields&... fields)
    {
        if (std::exchange(writtenAt_, Milliseconds()) != Milliseconds())
            Write("at", Milliseconds());
        std::fputs(step, stdout);
        (WriteField(fields), ...);
        std::putchar('\n');
    }

    std::string DrawsText() const
    {
        std::ostringstream text;
        text.precision(9); // a float as it is
        for (const float draw : platform.draws)
            text << draw << ' ';
        return text.str();
    }

    void WriteList()
    {
        std::ifstream file(game.lexicon, std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        Write("list", file.is_open(), bytes);
    }

    // What is no longer as it was written last.
    void WriteShown()
    {
        for (const Part& part : ::Parts()) {
            const Look look = InSession().LookOf(part);
            std::optional<Look>& written = looks_[IndexOf(part)];
            if (written != look)
                Write("look", IndexOf(part), look.Text, look.Faint, look.Enabled, look.OnView,
                    look.Chosen, look.Name, look.Help);
            written = look;
        }
        Write("shown", Focused() == nullptr ? -1 : static_cast<int>(IndexOf(*Focused())),
            board.Caption);
    }

    std::string name_;
    bool random_;
    bool settles_ = true; // the player does nothing
    std::uint32_t restarts_ = 0;
    int depth_ = 0; // steps under way
    std::int64_t writtenAt_ = 0;
    std::vector<std::optional<Look>> looks_; // as written last
};

std::vector<ScriptLine> LinesOf(const std::string& text)
{
    std::istringstream stream(text);
    return ReadScripts(stream, "").front().lines;
}

void WriteCase(const std::string& name, const std::vector<ScriptLine>& lines, bool random)
{
    Writer writer(name, random);
    for (const ScriptLine& line : lines)
        writer.Run(line);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc > 1) {
        SearchSessions(std::atoi(argv[1]), 1, [](const std::string& script) {
            WriteCase("a random session", LinesOf(script), true);
            return false;
        });
        return 0;
    }
    for (const char* folder : {"", "ui"}) {
        for (const Case& held : ReadCases(folder, PlayersWords())) {
            std::vector<ScriptLine> lines = LinesOf(beginningOfCases);
            lines.insert(lines.end(), held.lines.begin(), held.lines.end());
            WriteCase(held.name, lines, false);
        }
    }
}
