#include "dialogs/link_list.h"

#include <gtest/gtest.h>

#include "model/path_buffer.h"
#include "storage/paths.h"
#include "support/temporary_home.h"

namespace {

using Links = std::vector<std::u16string>;

class LinkList : public testing::Test {
protected:
    LinkList() {
        CopyPath(u"\\Program Files\\Quadrel\\", ProgramFolder);
    }
    std::filesystem::path File() const {
        return home.programFolder() / "quadrelhttplist.dat";
    }
    Links ReadFrom(const std::string& bytes) {
        WriteBytes(File(), bytes);
        Links links;
        EXPECT_TRUE(ReadLinks(links));
        return links;
    }
    std::string Written(const Links& links) {
        WriteLinks(links);
        return ReadBytes(File());
    }

    TemporaryHome home;
};

TEST_F(LinkList, WithoutAFileIsTheDefaultLink) {
    Links links = {u"old"};
    EXPECT_FALSE(ReadLinks(links));
    ASSERT_EQ(links.size(), 1u);
    EXPECT_TRUE(links[0].starts_with(u"http://"));
    EXPECT_TRUE(links[0].ends_with(u"/puzzles/today.puz"));
    WriteLinks(links);
    Links again;
    EXPECT_TRUE(ReadLinks(again));
    EXPECT_EQ(again, links);
    WriteLinks({});
    EXPECT_FALSE(std::filesystem::exists(File()));
    EXPECT_FALSE(ReadLinks(again));
}

TEST_F(LinkList, EndsAtTwoZerosAndPassesOverOne) {
    using namespace std::string_literals;
    const std::pair<std::string, Links> files[] = {{"", {}},
                                                   {"\0\0\0a\0"s, {}},
                                                   {"a\0"s, {u"a"}},
                                                   {"a"s, {u"a"}},
                                                   {"a\0bc\0d"s, {u"a", u"bc", u"d"}},
                                                   {"\0a\0"s, {u"a"}},
                                                   {"a\0\0b\0"s, {u"a", u"b"}},
                                                   {"a\0\0\0b\0"s, {u"a"}},
                                                   {"a\0\0\0\0\0b\0"s, {u"a"}}};
    for (const auto& [bytes, links] : files) {
        EXPECT_EQ(ReadFrom(bytes), links) << testing::PrintToString(bytes);
    }
}

// Fault: something is read beyond the buffer.
TEST_F(LinkList, ReadsFourKilobytesAndLinksOf259Characters) {
    EXPECT_EQ(ReadFrom(std::string(4096, 'a')), Links{std::u16string(259, u'a')});
    EXPECT_EQ(ReadFrom(std::string(9000, 'a')), Links{std::u16string(259, u'a')});
    const std::string full = std::string(4094, 'a') + '\0' + "b";
    EXPECT_EQ(ReadFrom(full + "bbb"), (Links{std::u16string(259, u'a'), u"b"}));
    EXPECT_EQ(ReadFrom(std::string(4095, 'a') + '\0' + "b"), Links{std::u16string(259, u'a')});
}

TEST_F(LinkList, KeepsAccentsAndWritesLinksInTheirOrder) {
    using namespace std::string_literals;
    const Links links = {u"http://z.example.com/r\u00E4tsel.puz", u"a", u"\u8C1C\U0001F9E9"};
    const std::string bytes =
        "http://z.example.com/r\xC3\xA4tsel.puz\0a\0\xE8\xB0\x9C\xF0\x9F\xA7\xA9\0"s;
    EXPECT_EQ(Written(links), bytes);
    EXPECT_EQ(ReadFrom(bytes), links);
}

// No character is torn, in either way.
TEST_F(LinkList, CutsLongLinksBetweenCharacters) {
    EXPECT_EQ(Written({std::u16string(259, u'a')}), std::string(259, 'a') + '\0');
    EXPECT_EQ(Written({std::u16string(200, u'\u00E4')}).size(), 259u);
    EXPECT_EQ(ReadFrom(std::string(258, 'a') + "\xF0\x9F\xA7\xA9"),
              Links{std::u16string(258, u'a')});
}

}  // namespace
