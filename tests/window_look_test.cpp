// How the controls are drawn: a few dots of them against colours that were written down by hand.
#include "window_fixture.h"

#include "game/board.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStyle>

namespace {

class Looks : public Window {
protected:
    // Of the control; a dot is counted from the far edge where it is negative.
    std::string Dot(const QImage& image, QPoint at) const
    {
        const QPoint dot = at * window.devicePixelRatioF();
        return image
            .pixelColor((dot.x() + image.width()) % image.width(),
                (dot.y() + image.height()) % image.height())
            .name()
            .toStdString();
    }
    QImage Drawn(const char* name) const { return Named(name).grab().toImage(); }

    // The darkest dot of a letter, without the edges of its box; and the row that it ends at.
    std::pair<std::string, int> Ink(const char* name) const
    {
        const QImage image = Drawn(name);
        const int edge = 6 * static_cast<int>(window.devicePixelRatioF());
        QColor darkest = Qt::white;
        int last = 0;
        for (int y = edge; y < image.height() - edge; ++y) {
            for (int x = edge; x < image.width() - edge; ++x) {
                const QColor dot = image.pixelColor(x, y);
                if (qGray(dot.rgb()) < qGray(darkest.rgb()))
                    darkest = dot;
                last = qGray(dot.rgb()) < 60 ? y : last;
            }
        }
        return {darkest.name().toStdString(), last};
    }
};

TEST_F(Looks, OfEveryState)
{
    struct Row {
        const char* state;
        const char* box;
        QPoint at;
        const char* colour;
    };
    const QPoint ground(5, 9);
    const QPoint top(9, 2);
    const QPoint lip(9, -3);
    const QPoint wideLip(9, -4);
    const QPoint edge(1, 9);
    const Row rows[] = {
        {"board you=planet swap=simple shown=m...../....../......", "Text1:1", ground, "#ffff00"},
        {"", "Text1:1", top, "#ffff00"},
        {"", "Text1:1", lip, "#8a8a00"},
        {"", "Text1:1", wideLip, "#8a8a00"},
        {"", "SwapLetters:2", ground, "#ffc0ff"},
        {"", "Word1:2", lip, "#8a6845"},
        {"", "Word1:1", lip, "#ff8000"},   // is not for sale
        {"", "Command3", edge, "#545454"}, // heavy
        {"", "Command13", edge, "#efefef"},
        {"board you=p.anet held=l2", "Text1:2", ground, "#ffff00"}, // and hollow
        {"", "Text1:2", top, "#8a8a00"},
        {"", "Text1:2", lip, "#ffff00"},
        {"board held= you=P----- up=.lanet next:2", "Text1:2", top, "#0048ba"},
        {"", "Text1:3", top, "#efef7c"},
        {"", "Text1:3", {0, 4}, "#efef7c"}, // out of play the line has gaps
        {"", "Text1:3", {-1, 4}, "#efef7c"},
        {"", "Text1:3", {-1, 7}, "#54542b"},
        {"", "Text2:2", wideLip, "#ffffff"}, // a low box has a narrow lip
        {"board guess=m...../....../......", "Text6:1", {9, 1}, "#b05000"},
        {"board guess=(7)...../....../......", "Text6:1", {2, 1}, "#c80000"},
        {"", "Text6:1", {9, 1}, "#ffffff"},
        {"do focus:Check1 key:Tab key:Backtab", "Check1", {9, 0}, "#000000"}, // the ring
        {"", "Check1", {9, 2}, "#ffffff"},
        {"board guess=m...../....../......", "Check1", {9, 2}, "#ffffff"},
        {"do focus:Text6:1", "Text6:1", {9, 1}, "#000000"},
        {"", "Text6:1", {9, 3}, "#b05000"},  // the mark within the ring
        {"", "Frame8", {29, 33}, "#efefef"}, // no tray
        {"", "Frame4", {5, 89}, "#c9c9c9"},
        {"", "Frame4", {0, 99}, "#9b9b9b"},
        {"", "Frame8", {0, 60}, "#fb3c3c"},
    };
    Play("Option1:1 Command1");
    Set("hidden=marten/lineup/feeder");
    for (const auto& [state, name, at, colour] : rows) {
        RunScript(*this, state, PlayersWords());
        EXPECT_EQ(Dot(Drawn(name), at), colour)
            << name << " after " << state << " at " << at.x() << ',' << at.y();
    }
}

TEST_F(Looks, OfLettersAndMarks)
{
    EXPECT_EQ(Dot(Drawn("Option1:1"), {9, -1}), "#c04000");
    Play("key:Tab key:Backtab");
    EXPECT_EQ(Dot(Drawn("Option1:1"), {9, -1}), "#ffffff") << "in focus, for who plays by keys";
    Play("Option1:1 Command1");
    EXPECT_EQ(Named<QLabel>("Label5").alignment(), Qt::AlignCenter);
    Set("you=p.anet held=l2");
    EXPECT_EQ(Ink("Text1:2").first, "#808000") << "a letter that is in the hand";
    Set("held= you=P----- up=.lanet next:2 off=arranging swap=SIMPLE");
    EXPECT_EQ(Ink("Text1:1").first, "#000000") << "a word that is laid out is clear";
    EXPECT_EQ(Ink("SwapLetters:2").first, "#605460") << "what is out of play is not";
    Set("you=planet up=......");
    const int last = Ink("Text1:2").second;
    Named<QAbstractButton>("Text1:2").setDown(true);
    EXPECT_GT(Ink("Text1:2").second, last) << "a letter goes down with its tile";
    Named<QAbstractButton>("Text1:2").setDown(false);

    QTest::mouseMove(window.windowHandle(), Named("Text1:1").mapTo(&window, QPoint(9, 9)));
    EXPECT_EQ(Dot(Drawn("Text1:1"), {1, 9}), "#000000") << "below the pointer";
    Set("shown=m...../....../......");
    QTest::mouseMove(window.windowHandle(), Named("Word1:1").mapTo(&window, QPoint(9, 9)));
    EXPECT_EQ(Dot(Drawn("Word1:1"), {1, 9}), "#ff8000") << "where a click does nothing";

    EXPECT_TRUE(Named("Command4").font().bold());
    const QWidget& option = Named("Option1:1");
    EXPECT_EQ(option.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &option), 6);

    RunScript(*this,
        "board candidates=300*pmanet swap=simple me=planet used=x\ndraws 18*0\ndo Command13");
    EXPECT_EQ(Dot(Drawn("List1"), {3, 25}), "#0048ba") << "the computer's word";
    EXPECT_EQ(Dot(Drawn("List1"), {3, 60}), "#ffffff");

    whileOpen = [this](QWidget& box) {
        const QImage usual = box.findChild<QAbstractButton*>()->grab().toImage();
        EXPECT_EQ(Dot(usual, {1, 9}), "#545454") << "Enter and Space press it";
    };
    Play("Command14");
}

TEST_F(Looks, OnADarkDesktop)
{
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    Play("Option1:1 Command1");
    EXPECT_EQ(Ink("Text1:2").first, "#000000");
    EXPECT_EQ(Dot(Drawn("Text6:2"), {0, 9}), "#787879");
    EXPECT_EQ(Dot(Drawn("List1"), {0, 9}), "#b0b0b1");
    QApplication::setPalette(QPalette());
}

} // namespace
