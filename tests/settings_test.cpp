#include "core/cSettingsClass.h"
#include "platform/fakes/memory_files.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>
#include <string>

namespace halvenmoor {
namespace {

class SettingsTest : public testing::Test {
protected:
    cSettingsClass Read(std::string_view text) {
        memory.Put("/Settings.ini", text);
        return cSettingsClass(memory, "/Settings.ini");
    }

    /// The file-name patterns of type 1 when the section holds this text.
    Strings Patterns(const std::string& text) {
        return Elements(Read("[Type1]\n" + text).TypeFileNamePatterns()[1]);
    }
    int Structure(const std::string& text) { return Read("[Settings]\n" + text).SourceStructure(); }

    fakes::MemoryFiles memory;
};

TEST_F(SettingsTest, EachSectionFeedsItsList) {
    const cSettingsClass settings = Read(
        "\xEF\xBB\xBF[mobile]\r\nm\r\n [SECTION] behind it \r\ns\r\n"
        "[REDLIGHT]\nl\n[redspeed]x\nr\n[Fixed]\nf\n[UNITS]; comment\nmph,kmh\n"
        "[type5]\n5\n[TYPE4]\n4\n[Type3]]\n3\n[Type2] \n2\n[Type1]\t\n1\n"
        "[settings]\nSourceStructure=3");
    for (std::size_t type = 1; type <= 5; ++type) {
        EXPECT_EQ(Elements(settings.TypeFileNamePatterns()[type]), Strings{std::to_string(type)});
        EXPECT_EQ(Elements(settings.TypeSearchPatterns()[type]), Strings{std::string(1, " frlsm"[type])});
    }
    EXPECT_EQ(Elements(settings.UnitSearchPatterns()), (Strings{"mph", "kmh"}));
    EXPECT_EQ(settings.SourceStructure(), 3);
}

TEST_F(SettingsTest, LinesAreTrimmedOfBlanksAndCommentsAreDropped) {
    EXPECT_EQ(Patterns("  ; a\n\\a\n/a\n:a\n\"a\n<a\n>a\n|a\n;a\n!a\n#a\n   \n\n  b  \n"), Strings{"b"});
    EXPECT_EQ(Patterns("\t;a\n\t[Type2]\nb\t\n"), (Strings{"\t;a", "\t[Type2]", "b\t"}));
    EXPECT_EQ(Patterns("[Other]\n[Type\n[Types]\n[RedSpeeds]\n"),
              (Strings{"[Other]", "[Type", "[Types]", "[RedSpeeds]"}));
    const cSettingsClass settings = Read("a\n[Other]\nb\n[Type1]\n");
    EXPECT_EQ(Elements(settings.TypeFileNamePatterns()[1]), Strings{}) << "lines before the first header";
}

TEST_F(SettingsTest, CommasAndLinesSeparateItems) {
    EXPECT_EQ(Patterns("a\n[Type2]\nb\n[TYPE1]\nc\n"), (Strings{"a", "c"}));
    EXPECT_EQ(Patterns("  a , b  \n c"), (Strings{"a ", " b", "c"}));
    EXPECT_EQ(Patterns("a,;b"), (Strings{"a", ";b"}));
    EXPECT_EQ(Patterns("a,\nb"), (Strings{"a", "", "b"}));
    EXPECT_EQ(Patterns(","), (Strings{"", ""}));
}

TEST_F(SettingsTest, LastValidStructureWins) {
    EXPECT_EQ(Structure("SourceStructure=3\nSourceStructure=1\n"), 1);
    EXPECT_EQ(Structure("sourcestructure = 1,  S o u r c eSTRUCTURE=  3"), 3);
    EXPECT_EQ(Structure("SourceStructure=3\nSourceStructure=0\nSourceStructure=4\nSourceStructure=12\n"), 3);
    EXPECT_EQ(Structure("SourceStructure=1 ; why\nSourceStructure=\t1\nOther=1\nSourceStructure\n"), 2);
}

TEST(PatternsTest, WalkNeedsAListOfAtMost32767) {
    EXPECT_EQ(FailureNumber([] { Elements(PatternList()); }), failure::TypeMismatch);
    EXPECT_EQ(FailureNumber([] { Elements(PatternList(Strings(32767))); }), 0);
    EXPECT_EQ(FailureNumber([] { Elements(PatternList(Strings(32768))); }), failure::Overflow);
}

}  // namespace
}  // namespace halvenmoor
