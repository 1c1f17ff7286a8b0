#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "node/output/JsonText.h"
#include "node/wording/Number.h"
#include "support/AnswerSamples.h"

using nlohmann::ordered_json;
using node::output::addText;
using node::output::addTextOrNull;
using node::output::addTexts;
using node::output::dump;
using node::output::toJson;
using node::output::toLine;

namespace
{

/// What addText() makes of a text.
std::string added(const std::string& text)
{
    ordered_json object;
    addText(object, "a", text);
    return dump(object);
}

TEST(JsonTextTest, Utf8StandsAsItIs)
{
    EXPECT_EQ(R"({"a":""})", added(""));
    EXPECT_EQ(R"({"a":"text"})", added("text"));
    EXPECT_EQ("{\"a\":\"\u00e4\u20ac\U0001f4e1\"}", added("\u00e4\u20ac\U0001f4e1"));
    EXPECT_EQ(R"({"a":"\u0000\u0001\n\"\\"})", added({"\0\x01\n\"\\", 5}));
}

TEST(JsonTextTest, ReplacementInTheTextItselfIsUtf8)
{
    EXPECT_EQ("{\"a\":\"\ufffd\"}", added("\ufffd"));
}

TEST(JsonTextTest, WhatIsNotUtf8IsReplacedAndItsBytesStandBeside)
{
    EXPECT_EQ("{\"a\":\"\ufffd\",\"a_hex\":\"ff\"}", added("\xff"));
    EXPECT_EQ("{\"a\":\"x\ufffd\ufffdy\",\"a_hex\":\"78fffe79\"}", added("x\xff\xfey"));
    EXPECT_EQ("{\"a\":\"\ufffd\\u0000\",\"a_hex\":\"c300\"}", added({"\xc3\0", 2}));
    EXPECT_EQ("{\"a\":\"x\ufffd\",\"a_hex\":\"78e282\"}", added("x\xe2\x82"));
}

TEST(JsonTextTest, OverlongFormsSurrogatesAndCodesBeyondTheLastAreNotUtf8)
{
    for (const std::string bytes :
         {"\xc0\x80", "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\x80"})
    {
        EXPECT_EQ(node::wording::printBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end())),
                  ordered_json::parse(added(bytes))["a_hex"].get<std::string>());
    }
}

TEST(JsonTextTest, EmptyTextMayBeNull)
{
    ordered_json object;
    addTextOrNull(object, "a", "");
    addTextOrNull(object, "b", "text");
    addTextOrNull(object, "c", "\xff");
    EXPECT_EQ("{\"a\":null,\"b\":\"text\",\"c\":\"\ufffd\",\"c_hex\":\"ff\"}", dump(object));
}

TEST(JsonTextTest, ListHasItsBytesBesideWhereOneTextNeedsThem)
{
    ordered_json object;
    addTexts(object, "a", {});
    addTexts(object, "b", {"x", ""});
    addTexts(object, "c", {"x", "\xff", ""});
    EXPECT_EQ("{\"a\":[],\"b\":[\"x\",\"\"],\"c\":[\"x\",\"\ufffd\",\"\"],\"c_hex\":[null,\"ff\",null]}", dump(object));
}

TEST(JsonTextTest, LineReplacesWhatADocumentHoldsAnyway)
{
    EXPECT_EQ("{\"\ufffd\":[\"\ufffd\"]}\n", toLine({{"\xff", {"\xff"}}}));
}

TEST(JsonTextTest, EveryTextOfAnAnswerHasItsBytes)
{
    EXPECT_EQ("{\"schema\":\"kel-node/1\","
              "\"place\":\"faults.txt:3\ufffd\",\"place_hex\":\"6661756c74732e7478743a33ff\","
              "\"command\":\"getCtStatus\ufffd\",\"command_hex\":\"6765744374537461747573ff\","
              "\"arguments\":[\"1\ufffd\",\"two words\ufffd\"],"
              "\"arguments_hex\":[\"31ff\",\"74776f20776f726473ff\"],"
              "\"channel\":1,\"time_s\":123.4,\"status\":\"failed\",\"exit_status\":1,\"result\":1,"
              "\"report\":\"Lock: locked\\nLevel: -43.02 dBm\\n\ufffd\",\"report_hex\":"
              "\"4c6f636b3a206c6f636b65640a4c6576656c3a202d34332e30322064426d0aff\","
              "\"fields\":["
              "{\"under\":\"CT info\ufffd\",\"under_hex\":\"435420696e666fff\","
              "\"label\":\"Lock\ufffd\",\"label_hex\":\"4c6f636bff\","
              "\"value\":\"locked\ufffd\",\"value_hex\":\"6c6f636b6564ff\","
              "\"unit\":\"\ufffd\",\"unit_hex\":\"ff\"},"
              "{\"under\":\"\ufffd\",\"under_hex\":\"ff\",\"label\":\"Level\ufffd\",\"label_hex\":\"4c6576656cff\","
              "\"value\":-43.02,\"unit\":\"dBm\ufffd\",\"unit_hex\":\"64426dff\"},"
              "{\"under\":\"\ufffd\",\"under_hex\":\"ff\",\"label\":\"Blocks\ufffd\",\"label_hex\":\"426c6f636b73ff\","
              "\"value\":-9007199254740993,\"unit\":\"\ufffd\",\"unit_hex\":\"ff\"},"
              "{\"under\":\"\ufffd\",\"under_hex\":\"ff\","
              "\"label\":\"XPIC Started\ufffd\",\"label_hex\":\"585049432053746172746564ff\","
              "\"value\":true,\"unit\":\"\ufffd\",\"unit_hex\":\"ff\"}],"
              "\"trace\":["
              "{\"time_s\":123.4,\"channel\":\"KEL.KDC\ufffd\",\"channel_hex\":\"4b454c2e4b4443ff\",\"level\":3,"
              "\"file\":\"KelDebugCmd\ufffd\",\"file_hex\":\"4b656c4465627567436d64ff\",\"line\":17,"
              "\"function\":\"getCtStatus\ufffd\",\"function_hex\":\"6765744374537461747573ff\","
              "\"text\":\"no answer\\n\ufffd\",\"text_hex\":\"6e6f20616e737765720aff\"},"
              "{\"time_s\":130.0,\"channel\":\"KEL\ufffd\",\"channel_hex\":\"4b454cff\",\"level\":-1,"
              "\"file\":\"\ufffd\",\"file_hex\":\"ff\",\"line\":0,"
              "\"function\":\"\ufffd\",\"function_hex\":\"ff\","
              "\"text\":\"get failed\ufffd\",\"text_hex\":\"676574206661696c6564ff\"}],"
              "\"error\":\"no answer\ufffd\",\"error_hex\":\"6e6f20616e73776572ff\"}\n",
              toLine(toJson(answer_samples::wholeOfBytes())));
}

} // namespace
