#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/plot/Plot.h"
#include "node/plot/SmallRun.h"

using node::plot::drawPicture;

namespace
{

TEST(PictureTest, ItsNameTellsWhatCanBeDrawn)
{
    EXPECT_TRUE(node::plot::isPicture("run.svg"));
    EXPECT_TRUE(node::plot::isPicture("folder.of/run.png"));
    EXPECT_FALSE(node::plot::isPicture("run.pdf"));
    EXPECT_FALSE(node::plot::isPicture("run.svg.txt"));
    EXPECT_FALSE(node::plot::isPicture("svg"));
    EXPECT_FALSE(node::plot::isPicture("run.PNG"));
    EXPECT_FALSE(node::plot::isPicture(""));
}

/// What keeps a drawing from being well-formed XML: a mark that stands for itself, an element that ends without having
/// begun or the other way round. "" where nothing does.
std::string objectionTo(const std::string& xml)
{
    std::vector<std::string> open;
    for (auto place = xml.find_first_of("<&\x1b"); place != std::string::npos;
         place = xml.find_first_of("<&\x1b", place + 1))
    {
        const std::string mark = xml.substr(place, xml.find_first_of(xml[place] == '<' ? ">" : ";", place) + 1 - place);
        const std::string name = mark.substr(0, mark.find_first_of(" \n/>", 2));
        if (mark.starts_with("</"))
        {
            if (open.empty() || mark != "</" + open.back() + ">")
            {
                return "ends without a beginning: " + mark;
            }
            open.pop_back();
        }
        else if (mark.find('<', 1) != std::string::npos ||
                 (xml[place] != '<' && mark != "&amp;" && mark != "&lt;" && mark != "&gt;"))
        {
            return "stands alone: " + xml.substr(place, 10);
        }
        else if (xml[place] == '<' && !mark.ends_with("/>") && !mark.ends_with("?>"))
        {
            open.push_back(name.substr(1));
        }
    }
    return open.empty() ? "" : "never ends: " + open.back();
}

TEST(PictureTest, TheTestKnowsWellFormedXml)
{
    EXPECT_EQ("", objectionTo("<?xml version=\"1.0\"?>\n<a b='1' c:d=\"2\">&amp;<e f='3'/>&lt; ></a>\n"));
    EXPECT_EQ("never ends: a", objectionTo("<a><b></b>"));
    EXPECT_EQ("ends without a beginning: </b>", objectionTo("<a></b></a>"));
    EXPECT_EQ("stands alone: & b</a>", objectionTo("<a>a & b</a>"));
    EXPECT_EQ("stands alone: < b</a>", objectionTo("<a>a < b</a>"));
    EXPECT_EQ("stands alone: \x1b</a>", objectionTo("<a>\x1b</a>"));
}

std::string number(const std::string& bytes)
{
    unsigned value = 0;
    for (const char byte : bytes)
    {
        value = value * 256 + static_cast<unsigned char>(byte);
    }
    return std::to_string(value);
}

/// The size that a PNG tells; "" for what is none.
std::string pngSize(const std::string& picture)
{
    const std::string begin("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    return picture.starts_with(begin) ? number(picture.substr(16, 4)) + "x" + number(picture.substr(20, 4)) : "";
}

struct Named
{
    std::string name;
    node::plot::Run run;
};

std::ostream& operator<<(std::ostream& out, const Named& named)
{
    return out << named.name;
}

std::vector<Named> runs()
{
    const double infinity = std::numeric_limits<double>::infinity();
    std::vector<double> times_s(10'000);
    for (std::size_t i = 0; i < times_s.size(); ++i)
    {
        times_s[i] = static_cast<double>(i);
    }
    auto unlocked = small_run::rain();
    for (auto& sample : unlocked.channels[0])
    {
        sample.locked = false;
    }
    return {
        {"Rain", small_run::rain()},
        {"Flat", small_run::always({-43, 20, 4, true}, {0, 1, 2})},
        {"OneSample", small_run::always({-43, 20, 4, true}, {0})},
        {"OneChannelLocked", unlocked},
        {"NeverLocked", small_run::always({-90, -5, 0, false}, {0, 1, 2})},
        {"NoSignal", small_run::always({-infinity, -infinity, 0, false}, {0, 1})},
        {"NoSample", small_run::always({}, {})},
        {"ManySamples", small_run::always({-43, 20, 4, true}, times_s)},
    };
}

class EveryRunTest : public ::testing::TestWithParam<Named>
{
};

TEST_P(EveryRunTest, IsDrawnInEachForm)
{
    const auto& run = GetParam().run;
    const std::string svg = drawPicture(run, "run.svg");
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\"")) << svg.substr(0, 100);
    EXPECT_TRUE(svg.ends_with("</svg>\n\n")) << svg.substr(svg.size() - 20);
    EXPECT_EQ("", objectionTo(svg));
    EXPECT_NE(std::string::npos, svg.find("width=\"960\" height=\"720\""));
    EXPECT_EQ("960x720", pngSize(drawPicture(run, "run.png")));
    EXPECT_NE("", node::plot::drawText(run, {}));
}

INSTANTIATE_TEST_SUITE_P(Runs, EveryRunTest, ::testing::ValuesIn(runs()),
                         [](const auto& run) { return run.param.name; });

TEST(PictureTest, TheSameRunIsTheSameBytes)
{
    const auto run = small_run::rain();
    EXPECT_EQ(drawPicture(run, "a.svg"), drawPicture(run, "b.svg"));
    EXPECT_EQ(drawPicture(run, "a.png"), drawPicture(run, "b.png"));
}

TEST(PictureTest, AnotherRunIsAnotherPicture)
{
    auto other = small_run::rain();
    other.channels[1][2].snir_dB += 1;
    EXPECT_NE(drawPicture(small_run::rain(), "a.svg"), drawPicture(other, "a.svg"));
    EXPECT_NE(drawPicture(small_run::rain(), "a.png"), drawPicture(other, "a.png"));
}

TEST(PictureTest, TitlesAndNamesAreNothingButText)
{
    auto run = small_run::rain();
    run.title = R"('; system(''exit 1)' # "%d" \n `id` @m {/:Bold <b>} & \)";
    run.modulations[1] = "'%g' <_4^QAM>\n";
    const std::string svg = drawPicture(run, "run.svg");
    EXPECT_EQ("", objectionTo(svg));
    EXPECT_NE(std::string::npos,
              svg.find(R"(<text>'; system(''exit 1)' # "%d" \n `id` @m {/:Bold &lt;b>} &amp; \</text>)"));
    EXPECT_NE(std::string::npos, svg.find("<text>'%g' &lt;_4^QAM> </text>"));
    run.title = "Jūrmala \xff";
    EXPECT_NE(std::string::npos, drawPicture(run, "run.svg").find("<text>Jūrmala \uFFFD</text>"));
}

} // namespace
