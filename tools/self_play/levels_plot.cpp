#include "tools/self_play/levels_plot.h"

#include <algorithm>
#include <cmath>
#include <iomanip>

namespace {

constexpr double panelHeight = 200;
constexpr double panelTop = 60;
constexpr double step = 48; // from level to level
constexpr double barWidth = 28;

// A card of its own under the picture, so that it reads on any page; it follows the reader's theme.
constexpr const char* head
    = R"(<svg xmlns="http://www.w3.org/2000/svg" width="760" height="310" viewBox="0 0 760 310"
     font-family="sans-serif" font-size="13" text-anchor="middle">
<style>
  .card { fill: #ffffff; stroke: #b0b0b0 }
  .text { fill: #202020 }
  .grid { stroke: #b0b0b0 }
  .bar { fill: #2f6fb2; stroke: #2f6fb2 }
  @media (prefers-color-scheme: dark) {
    .card { fill: #1c1f24; stroke: #50555c }
    .text { fill: #e6e6e6 }
    .grid { stroke: #50555c }
    .bar { fill: #6ea8e0; stroke: #6ea8e0 }
  }
</style>
<rect class="card" x="0.5" y="0.5" width="759" height="309" rx="8"/>
)";

// One half of the picture: a title, a scale from 0, and a place for each level.
class Panel {
public:
    Panel(std::ostream& out, double left, const char* title, double highest, double gridStep)
        : out_(out)
        , left_(left)
        , top_(gridStep * std::ceil(highest / gridStep))
    {
        Text(left + 3.2 * step, panelTop - 30, title);
        for (int line = 0; line * gridStep <= top_; ++line) {
            const double value = line * gridStep;
            out_ << "<line class=\"grid\" x1=\"" << left << "\" x2=\"" << left + 6.4 * step
                 << "\" y1=\"" << Height(value) << "\" y2=\"" << Height(value) << "\"/>\n";
            Text(left - 18, Height(value) + 4, value);
        }
    }

    double Height(double value) const { return panelTop + panelHeight * (1 - value / top_); }
    double Middle(std::size_t place) const
    {
        return left_ + step * (static_cast<double>(place) + 0.7);
    }

    template <typename Content> void Text(double x, double y, Content content)
    {
        out_ << "<text class=\"text\" x=\"" << x << "\" y=\"" << y << "\">" << content
             << "</text>\n";
    }

    // A bar from one value to another, and the level under it.
    void Bar(std::size_t place, double from, double to, double width)
    {
        out_ << "<rect class=\"bar\" x=\"" << Middle(place) - width / 2 << "\" y=\"" << Height(to)
             << "\" width=\"" << width << "\" height=\"" << Height(from) - Height(to) << "\"/>\n";
        Text(Middle(place), panelTop + panelHeight + 20, place + 1);
    }

    void Dot(std::size_t place, double value)
    {
        out_ << "<circle class=\"bar\" cx=\"" << Middle(place) << "\" cy=\"" << Height(value)
             << "\" r=\"5\"/>\n";
    }

private:
    std::ostream& out_;
    double left_;
    double top_;
};

} // namespace

void DrawLevels(std::ostream& out, std::span<const LevelMeasures> levels)
{
    out << std::setprecision(4) << head;

    const double mostWords
        = std::ranges::max(levels, {}, &LevelMeasures::wordsPer100Goes).wordsPer100Goes;
    Panel words(out, 50, "The computer's words per hundred goes", mostWords, 20);
    const int mostGoes = std::ranges::max(levels, {}, &LevelMeasures::upperQuartile).upperQuartile;
    Panel goes(out, 430, "Goes until its claim: median and middle half", mostGoes, 20);
    for (std::size_t place = 0; place < levels.size(); ++place) {
        const LevelMeasures& level = levels[place];
        words.Bar(place, 0, level.wordsPer100Goes, barWidth);
        goes.Bar(place, level.lowerQuartile, level.upperQuartile, 2);
        goes.Dot(place, level.median);
    }
    words.Text(50 + 3.2 * step, 300, "Level");
    goes.Text(430 + 3.2 * step, 300, "Level");
    out << "</svg>\n";
}
