#include "base/text/decode.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_program.h"
#include "ui/frmRename.h"
#include "ui/language/cNamesClass.h"

#include <filesystem>

namespace halvenmoor {
namespace {

constexpr auto kProper = cNamesClass::Case::Proper;
constexpr auto kAsWritten = cNamesClass::Case::AsWritten;

TEST(NormaliseTextTest, RemovesMarksAndSetsTheCase) {
    const struct {
        const char* raw;
        const char* proper;
        const char* asWritten;
    } cases[] = {
        {"Total Files #and Cameras", "Total Files and Cameras", "Total Files and Cameras"},
        {"Mc#donald", "McDonald", "Mcdonald"},
        {"total #AND o#K", "Total and OK", "Total AND oK"},
        {"\"save &as\"", "Save As", "Save as"},
        {"salt & pepper", "Salt  Pepper", "Salt  pepper"},
        {"one # two", "One Two", "One two"},
        {"rock-and-roll o'neill OV2", "Rock-and-roll O'neill Ov2", "Rock-and-roll o'neill OV2"},
        {"tab\tstop  two", "Tab\tStop  Two", "Tab\tstop  two"},
        {"übung ÉCOLE à #ÄTNA", "Übung École À ätna", "Übung ÉCOLE à ÄTNA"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(NormaliseText(test.raw, kProper), test.proper);
        EXPECT_EQ(NormaliseText(test.raw, kAsWritten), test.asWritten);
    }
}

class NamesTest : public testing::Test {
protected:
    NamesTest() {
        names.SetPath("/p/lang/");
        names.SetSection("Halvenmoor");
        names.SetLanguage("Test");
        names.SetEnabled(true);
    }

    std::string StartIn(std::string_view file) {
        program.memory.Put("/p/lang/test.ini", file);
        return names.ButtonStart();
    }

    TestProgram program;
    cNamesClass names{program.core.Services()};
};

TEST_F(NamesTest, TextsAreFoundInTheLanguageFile) {
    const std::pair<const char*, const char*> cases[] = {
        {"[Halvenmoor]\nButtonStart=los\n", "Los"},
        {"\xEF\xBB\xBF[HALVENMOOR]\r\n \tbuttonSTART = LOS geht's \t\r\n", "Los Geht's"},
        {"[Halvenmoor]\nButtonStart=gr\xFC\xDF\x65", "Grüße"},
        {"[Halvenmoor]\nButtonStart=\"1=1\"", "1=1"},
        {"[Other]\nButtonStart=a\n[Halvenmoor]\n\n;ButtonStart=b\nButtonStart\nButtonStart=c\nButtonStart=d",
         "C"},
        {"[Halvenmoor]\nButtonStart=a\n[Halvenmoor]\nButtonStart=b", "A"},
        {"[Halvenmoor]\nButtonStart=\nButtonStart=b", "Start"},
        {"[Halvenmoor]\nButtonStarts=a\n[Other]\nButtonStart=b", "Start"},
        {"", "Start"},
    };
    for (const auto& [file, shown] : cases) EXPECT_EQ(StartIn(file), shown) << file;
    program.locale.CodePageNumber = 1250;
    EXPECT_EQ(StartIn("[Halvenmoor]\nButtonStart=\x9Elu\x9D"), "Žluť") << "an old file on its own system";
}

TEST_F(NamesTest, EveryLanguageThatComesWithTheProgramIsComplete) {
    for (const auto& entry : std::filesystem::directory_iterator(HALVENMOOR_DATA "/lang")) {
        SCOPED_TRACE(FromStandard(entry.path()));
        std::string file = BytesOf(entry);
        program.memory.Put("/p/lang/test.ini", file);
        EXPECT_TRUE(text::IsValidUtf8(file));
        std::erase_if(file, [](char character) { return character == '#' || character == '\r'; });
        for (const auto* text : names.Texts()) {
            const std::string shown = (*text)();
            EXPECT_NE(shown, "");
            EXPECT_NE(file.find('\n' + std::string(text->Key()) + '=' + shown + '\n'), std::string::npos)
                << text->Key() << " shows as " << shown;
        }
    }
}

TEST(LanguagesTest, EveryTextShowsAndNoneIsLeftInEnglish) {
    ImportProgram program;
    const cNamesClass english(program.core.Services());
    const auto& texts = english.Texts();
    ASSERT_EQ(texts.size(), 54u);
    std::string language;
    for (std::size_t i = 0; i < texts.size(); ++i)
        language += std::string(texts[i]->Key()) + "=<" + std::to_string(i) + ">\n";
    program.AddLanguage("english", language);
    EXPECT_TRUE(UserChoosesLanguage(program.Window(), "English"));
    for (const char* entry : {"a", "b"}) program.AddCameraFile(entry, "1.5,52.5,x\n");
    program.AddTxt("c", "1.5,52.5,1,50\n");
    program.Click(program.Window().CheckAuto[1]);

    std::string shown;
    const auto look = [&shown](const forms::Form& form) {
        shown += form.Caption() + '\n';
        for (const forms::Control* control : form.Controls())
            shown += control->Caption() + '\n' + control->AccessibleName() + '\n';
    };
    program.toolkit.OnYield = [&] {  // while an export runs, too
        if (const forms::Form* dialog = program.toolkit.OpenDialog()) look(*dialog);
    };
    look(program.Window());
    program.Select(0, {"b"});
    EXPECT_TRUE(program.TestProgram::Open<frmRename>(program.Window().ButtonRenameFile, look));
    program.Move(1, {"a"});
    for (const int mode : {2, 3}) EXPECT_TRUE(program.ExportTo(mode, "/p/txt/a.txt", look));
    EXPECT_EQ(program.Import(ImportProgram::kTxt, look), "PictureFinished");
    for (const auto& dialog : program.fileDialogs.Asked) shown += dialog.title + dialog.suggestedName;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_NE(shown.find('<' + std::to_string(i) + '>'), std::string::npos) << texts[i]->Key();
        EXPECT_EQ(shown.find((*texts[i])()), std::string::npos) << (*texts[i])();
    }
}

}  // namespace
}  // namespace halvenmoor
