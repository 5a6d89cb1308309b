#include "dialogs/link_list.h"

#include <gtest/gtest.h>

#include "model/path_buffer.h"
#include "storage/paths.h"
#include "support/temporary_home.h"

namespace {

using namespace std::string_literals;
using Links = std::vector<std::u16string>;

class LinkList : public testing::Test {
protected:
    LinkList() {
        CopyPath(u"\\Program Files\\Quadrel\\", ProgramFolder);
    }

    TemporaryHome home;
    std::filesystem::path file = home.programFolder() / "quadrelhttplist.dat";
};

TEST_F(LinkList, WithoutAFileIsTheDefaultLink) {
    Links links = {u"old"};
    EXPECT_FALSE(ReadLinks(links));
    EXPECT_EQ(links, Links{u"http://www.example.com/daily/puzzles/today.puz"});
    WriteLinks(links);
    EXPECT_TRUE(ReadLinks(links));
    WriteLinks({});
    EXPECT_FALSE(std::filesystem::exists(file));
}

// It ends at two zeros and passes over one; 4096 bytes count, 259 characters of a link do. Fault:
// something is read beyond the buffer.
TEST_F(LinkList, ReadsWhateverIsInTheFile) {
    const std::u16string longest(259, u'a');
    const std::pair<std::string, Links> files[] = {
        {"", {}},
        {"\0\0\0a\0"s, {}},
        {"a"s, {u"a"}},
        {"a\0bc\0d"s, {u"a", u"bc", u"d"}},
        {"\0a\0"s, {u"a"}},
        {"a\0\0b\0"s, {u"a", u"b"}},
        {"a\0\0\0b\0"s, {u"a"}},
        {std::string(9000, 'a'), {longest}},
        {std::string(4094, 'a') + "\0bbbb"s, {longest, u"b"}},
        {std::string(4095, 'a') + "\0b"s, {longest}},
        {std::string(258, 'a') + "\xF0\x9F\xA7\xA9", {longest.substr(1)}}};
    for (const auto& [bytes, expected] : files) {
        WriteBytes(file, bytes);
        Links links;
        EXPECT_TRUE(ReadLinks(links));
        EXPECT_EQ(links, expected) << testing::PrintToString(bytes);
    }
}

// No character is torn.
TEST_F(LinkList, WritesLinksInTheirOrderAndCutsLongOnes) {
    const std::pair<Links, std::string> lists[] = {
        {{u"http://z.example.com/r\u00E4tsel.puz", u"a", u"\u8C1C\U0001F9E9"},
         "http://z.example.com/r\xC3\xA4tsel.puz\0a\0\xE8\xB0\x9C\xF0\x9F\xA7\xA9\0"s},
        {{std::u16string(259, u'a'), u"b"}, std::string(259, 'a') + "\0b\0"s},
        {{std::u16string(257, u'a') + u"\u8C1C"}, std::string(257, 'a') + '\0'},
        {{std::u16string(256, u'a') + u"\u8C1C"}, std::string(256, 'a') + "\xE8\xB0\x9C\0"s}};
    for (const auto& [links, bytes] : lists) {
        WriteLinks(links);
        EXPECT_EQ(ReadBytes(file), bytes);
    }
    Links again;
    EXPECT_TRUE(ReadLinks(again));
    EXPECT_EQ(again, lists[3].first);
}

}  // namespace
