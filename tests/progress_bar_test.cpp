#include "core/failure.h"
#include "files_test_helpers.h"
#include "platform/headless/services.h"
#include "platform/headless/toolkit.h"
#include "ui/cProgressBar.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace halvenmoor {
namespace {

using forms::Color;
using forms::Rgb;

constexpr Color black = Rgb(0, 0, 0);
constexpr Color white = Rgb(255, 255, 255);
constexpr Color red = Rgb(255, 0, 0);
constexpr Color green = Rgb(0, 255, 0);
constexpr Color blue = Rgb(0, 0, 255);
// The system colours of FixedTheme.
constexpr Color shadow = Rgb(128, 128, 128);
constexpr Color light = Rgb(254, 254, 254);

/// Pixels that also remember the last text.
struct Paper : headless::MemoryCanvas {
    using MemoryCanvas::MemoryCanvas;

    void DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font& font,
                  Color color) override {
        LastText = text;
        MemoryCanvas::DrawText(text, area, font, color);
    }

    std::string LastText;
};

struct PaperView : headless::HeadlessView {
    PaperView(forms::Form& form, Paper& canvas) : HeadlessView(form), paper(canvas) {}
    forms::Canvas& Canvas(forms::PictureBox&) override { return paper; }

    Paper& paper;
};

struct PaperToolkit : headless::HeadlessToolkit {
    PaperToolkit(headless::ManualClock& clock, Paper& canvas) : HeadlessToolkit(clock), paper(canvas) {}
    std::unique_ptr<forms::View> CreateView(forms::Form& form) override {
        return std::make_unique<PaperView>(form, paper);
    }

    Paper& paper;
};

/// A red bar on green paper of 100 by 20 pixels, with a text; blue pixels are untouched.
class ProgressBarTest : public testing::Test {
protected:
    ProgressBarTest() {
        desktop.Show(form);
        paper.FillRect(paper.ClientRect(), blue);
    }

    void ShowBar() {
        bar.SetPicBox(&box);
        bar.SetMax(200);
        bar.SetShowText(true);
        bar.SetBackColor(green);
        bar.SetBarColor(red);
    }

    /// The colours of a row from left to right, without the frame; each run of a colour once.
    std::vector<Color> RunsOfRow(int y) const {
        std::vector<Color> runs;
        for (int x = 1; x < 99; ++x) {
            if (runs.empty() || runs.back() != paper.At(x, y)) runs.push_back(paper.At(x, y));
        }
        return runs;
    }

    Paper paper{{0, 0, 100 * 15, 20 * 15}};
    headless::ManualClock clock;
    PaperToolkit toolkit{clock, paper};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    forms::Form form{desktop, {}};
    forms::PictureBox box{form, {.name = "box", .place = {}, .bordered = true}};
    headless::FixedTheme theme;
    cProgressBar bar{theme};
};

TEST_F(ProgressBarTest, TextColoursMeetAtTheEdgeOfTheBar) {
    ShowBar();
    bar.SetValue(100);
    EXPECT_EQ(paper.LastText, "50%");
    EXPECT_EQ(bar.Percent(), 50.0);
    // The text is 21 pixels wide and 9 high: from 39 to 60, and from 5 to 14.
    EXPECT_EQ(RunsOfRow(10), (std::vector<Color>{red, white, black, green}));
    EXPECT_EQ(RunsOfRow(4), (std::vector<Color>{red, green}));
    EXPECT_EQ(paper.At(38, 10), red);
    EXPECT_EQ(paper.At(39, 10), white);
    EXPECT_EQ(paper.At(49, 10), white);
    EXPECT_EQ(paper.At(50, 10), black);
    EXPECT_EQ(paper.At(59, 10), black);
    EXPECT_EQ(paper.At(60, 10), green);
}

TEST_F(ProgressBarTest, HalvesGoToTheEvenNeighbour) {
    ShowBar();
    const struct {
        int value;
        double percent;
        const char* text;
        int edge;  // the first pixel right of the bar, 100 pixels being the whole
    } cases[] = {{25, 12.5, "12%", 12}, {27, 13.5, "14%", 14}, {26, 13, "13%", 13}};
    for (const auto& test : cases) {
        bar.SetValue(test.value);
        EXPECT_EQ(bar.Percent(), test.percent);
        EXPECT_EQ(paper.LastText, test.text);
        EXPECT_EQ(paper.At(test.edge - 1, 2), red) << test.value;
        EXPECT_EQ(paper.At(test.edge, 2), green) << test.value;
    }
}

TEST_F(ProgressBarTest, ValuesOutsideTheRangeGiveAnEmptyAndAFullBar) {
    ShowBar();
    bar.SetMin(-200);
    bar.SetValue(-201);
    EXPECT_EQ(paper.LastText, "0%");
    EXPECT_EQ(bar.Percent(), 0.0);
    EXPECT_EQ(RunsOfRow(10), (std::vector<Color>{green, black, green}));
    bar.SetValue(201);
    EXPECT_EQ(paper.LastText, "100%");
    EXPECT_EQ(bar.Percent(), 100.0);
    EXPECT_EQ(RunsOfRow(10), (std::vector<Color>{red, white, red}));
}

TEST_F(ProgressBarTest, FrameIsSunkenAndLeavesOutTheLastPixelOfItsLines) {
    ShowBar();
    for (int x = 1; x < 99; ++x) {
        EXPECT_EQ(paper.At(x, 0), shadow);
        EXPECT_EQ(paper.At(x, 19), light);
    }
    for (int y = 1; y < 19; ++y) {
        EXPECT_EQ(paper.At(0, y), shadow);
        EXPECT_EQ(paper.At(99, y), light);
    }
    EXPECT_EQ(paper.At(0, 0), shadow);
    EXPECT_EQ(paper.At(99, 0), shadow);
    EXPECT_EQ(paper.At(0, 19), shadow) << "the bottom line ends before its last pixel";
    EXPECT_EQ(paper.At(99, 19), light);
}

TEST_F(ProgressBarTest, InitialColoursFillNothingAndNoTextIsDrawnUnlessWanted) {
    bar.SetPicBox(&box);
    EXPECT_EQ(paper.Refreshes(), 0) << "handing over the box draws nothing";
    EXPECT_FALSE(box.Bordered());
    bar.SetValue(50);
    EXPECT_EQ(RunsOfRow(10), std::vector<Color>{blue});
    EXPECT_EQ(paper.LastText, "");
    EXPECT_EQ(bar.Percent(), 50.0);
    bar.SetBackColor(forms::kButtonFace);
    bar.SetBarColor(forms::kHighlight);
    EXPECT_EQ(RunsOfRow(10), (std::vector<Color>{Rgb(0, 0, 128), Rgb(192, 192, 192)}));
    EXPECT_EQ(paper.Refreshes(), 3) << "each change is on the screen at once";
}

TEST_F(ProgressBarTest, WithoutABoxValuesAreOnlyStored) {
    bar.SetMax(10);
    bar.SetValue(5);
    EXPECT_EQ(bar.Percent(), 0.0);
    bar.SetPicBox(&box);
    bar.SetPicBox(nullptr);
    EXPECT_EQ(bar.PicBox(), &box);
    bar.Draw();
    EXPECT_EQ(bar.Percent(), 50.0);
}

TEST_F(ProgressBarTest, RangeOfNothingAndOverflowFail) {
    ShowBar();
    EXPECT_EQ(FailureNumber([this] { bar.SetMax(0); }), failure::DivisionByZero);
    EXPECT_EQ(bar.Max(), 0);
    EXPECT_EQ(FailureNumber([this] { bar.SetMin(std::numeric_limits<std::int32_t>::min()); }),
              failure::Overflow);
}

}  // namespace
}  // namespace halvenmoor
