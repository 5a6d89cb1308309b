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

// It ends at two zeros and passes over one; 4096 bytes count, 259 characters of a link do, and none
// is torn. Fault: something is read beyond the buffer.
TEST_F(LinkList, ReadsWhateverIsInTheFileAndWritesLinksInTheirOrder) {
    const std::u16string longest(259, u'a');
    const std::string puzzle = "\xF0\x9F\xA7\xA9";
    const std::pair<std::string, Links> files[] = {
        {"", {}},
        {"\0\0\0a\0"s, {}},
        {"a\0\xC3\xA4\xE8\xB0\x9C\0d"s, {u"a", u"\u00E4\u8C1C", u"d"}},
        {"\0a\0\0b\0\0\0c"s, {u"a", u"b"}},
        {std::string(9000, 'a'), {longest}},
        {std::string(4094, 'a') + "\0bbbb"s, {longest, u"b"}},
        {std::string(4095, 'a') + "\0b"s, {longest}},
        {std::string(258, 'a') + puzzle, {longest.substr(1)}}};
    for (const auto& [bytes, expected] : files) {
        WriteBytes(file, bytes);
        Links links;
        EXPECT_TRUE(ReadLinks(links));
        EXPECT_EQ(links, expected) << testing::PrintToString(bytes);
    }
    WriteLinks({u"b", longest, u"\u00E4\U0001F9E9", std::u16string(257, u'a') + u"\u8C1C"});
    EXPECT_EQ(ReadBytes(file), "b\0"s + std::string(259, 'a') + "\0\xC3\xA4"s + puzzle + '\0' +
                                   std::string(257, 'a') + '\0');
}

}  // namespace
