#include "base/text/compare.h"
#include "forms/combo_box.h"
#include "forms/desktop.h"
#include "platform/fakes/toolkit.h"
#include "platform/headless/list_actions.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace halvenmoor::forms {
namespace {

using headless::ItemsOf;
using Log = std::vector<std::string>;

Design At(Form& form, const char* name, int tab) {
    return {.form = form, .name = name, .bounds = {}, .tab = tab};
}

/// A form that tells what happens to it. Its tab order is not the order of its controls.
struct TestForm : Form {
    TestForm(Desktop& desktop, Log& events, FormDesign design)
        : Form(desktop, std::move(design)), log(events) {
        for (Control* control : std::initializer_list<Control*>{&first, &second, &third}) {
            control->OnGotFocus = [this, control] { log.push_back("got " + control->Name()); };
            control->OnLostFocus = [this, control] { log.push_back("lost " + control->Name()); };
        }
    }

    void Tell(const std::string& event) { log.push_back(AtDesign().name + " " + event); }
    void Load() override {
        Tell("load");
        if (OnLoad) OnLoad();
    }
    void Activate() override {
        Tell("activate");
        if (OnActivate) OnActivate();
    }
    bool QueryClose(CloseReason reason) override {
        Tell(reason == CloseReason::User ? "user?" : reason == CloseReason::Program ? "program?" : "system?");
        return mayClose;
    }

    Log& log;
    bool mayClose = true;
    std::function<void()> OnLoad;
    std::function<void()> OnActivate;
    CommandButton third{At(*this, "third", 3)};
    Label title{At(*this, "title", 0)};
    CommandButton first{At(*this, "first", 1)};
    CheckBox second{At(*this, "second", 2)};
};

class FormsTest : public testing::Test {
protected:
    void ShowMain() {
        desktop.Show(main);
        log.clear();
    }
    /// Shows the dialog; the user does this in it, and then it closes.
    void ShowDialog(const std::function<void()>& userActs) {
        toolkit.Script([userActs](Form& form) {
            userActs();
            form.Unload();
        });
        desktop.ShowModal(dialog);
    }
    void CountClicks(Control& control) {
        control.OnClick = [this] { ++clicks; };
    }

    Log log;
    int clicks = 0;
    headless::SkippingClock clock;
    fakes::WatchedToolkit toolkit{clock};
    Desktop desktop{toolkit,
                    [](std::string_view text) { return text::FoldedKey(text, text::WindowsCodePage(1252)); }};
    TestForm main{desktop, log, {.name = "main", .title = ""}};
    TestForm dialog{desktop, log, {.name = "dialog", .title = ""}};
    ListBox list{At(main, "list", 4)};
    ListBox other{At(main, "other", 6)};
    ComboBox combo{At(main, "combo", 5)};
};

TEST_F(FormsTest, CodeRaisesAClickWhenItChangesAValueAndOnlyThen) {
    OptionButton option(At(main, "option", 7));
    for (Control* control : main.Controls()) CountClicks(*control);
    combo.AddItem("a");
    list.AddItems({"a"});
    const struct {
        const char* what;
        std::function<void()> change;
    } cases[] = {
        {"check", [&] { main.second.SetValue(true); }},
        {"option", [&] { option.SetValue(true); }},
        {"choice", [&] { combo.SetListIndex(0); }},
        {"selection", [&] { list.SetSelected(0, true); }},
    };
    for (const auto& test : cases) {
        clicks = 0;
        for (int i = 0; i < 2; ++i) test.change();
        EXPECT_EQ(clicks, 1) << test.what;
    }
    option.SetValue(false);
    EXPECT_EQ(clicks, 1) << "an option that goes off";
}

TEST_F(FormsTest, DisabledOrHiddenControlPassesTheFocusOnInTabOrder) {
    for (Control* control : std::initializer_list<Control*>{&list, &other, &combo})
        control->SetEnabled(false);
    ShowMain();
    EXPECT_TRUE(main.first.HasFocus()) << "a label takes no focus";
    main.second.SetFocus();
    log.clear();
    main.second.SetEnabled(false);
    EXPECT_EQ(log, (Log{"lost second", "got third"})) << "not back to the first";
    main.second.SetFocus();
    EXPECT_TRUE(main.third.HasFocus()) << "a disabled control takes no focus";
    main.third.SetVisible(false);
    EXPECT_TRUE(main.first.HasFocus()) << "round the end of the order";
    main.first.SetEnabled(false);
    EXPECT_EQ(main.ActiveControl(), nullptr);
    EXPECT_FALSE(main.first.UserPress() || main.third.UserPress() || main.third.UserFocused());
}

TEST_F(FormsTest, DialogIsActivatedOnceAndTheMainWindowAfterTheLastOne) {
    desktop.Show(main);
    EXPECT_EQ(log, (Log{"main load", "got first", "main activate"}));
    log.clear();
    TestForm inner(desktop, log, {.name = "inner", .title = ""});
    inner.OnActivate = [&] { inner.Unload(); };
    ShowDialog([&] { desktop.ShowModal(inner); });
    EXPECT_EQ(log, (Log{"dialog load", "got first", "dialog activate", "inner load", "got first",
                        "inner activate", "inner program?", "dialog program?", "main activate"}));
}

TEST_F(FormsTest, FormIsAskedWithTheReasonAndMayStayOpen) {
    ShowMain();
    main.mayClose = false;
    EXPECT_TRUE(main.UserClose());
    main.Unload();
    EXPECT_TRUE(main.IsOpen());
    EXPECT_EQ(log, (Log{"main user?", "main program?"}));
    main.mayClose = true;
    dialog.mayClose = false;
    ShowDialog([&] {
        log.clear();
        EXPECT_FALSE(desktop.CloseAll());
        EXPECT_EQ(log, (Log{"dialog system?"})) << "nobody below is asked";
        dialog.mayClose = true;
        EXPECT_TRUE(desktop.CloseAll());
    });
    EXPECT_EQ(log, (Log{"dialog system?", "dialog system?", "main system?"}));
    EXPECT_TRUE(desktop.Ended());
}

TEST_F(FormsTest, FailureEndsOnlyItsOwnEvent) {
    ShowMain();
    dialog.OnLoad = [] { throw std::runtime_error("failure"); };
    desktop.ShowModal(dialog);
    EXPECT_EQ(log, (Log{"dialog load", "dialog program?", "main activate"}))
        << "a form half loaded does not show";
    log.clear();
    main.second.OnClick = [] { throw 1; };
    main.first.OnClick = [this] {
        main.second.SetValue(true);
        main.Tell("goes on");
        main.title.SetCaption("done");
        throw std::runtime_error("failure");
    };
    EXPECT_TRUE(main.first.UserPress());
    EXPECT_EQ(log, Log{"main goes on"});
    EXPECT_EQ(main.title.Caption(), "done");
    EXPECT_FALSE(main.HasChanges()) << "what changed before the failure shows";
}

TEST_F(FormsTest, ListsOrderByFoldedCharactersAndEqualOnesByBytes) {
    list.AddItems({"z", "b", "\xC3\xA4", "a", "B"});
    list.AddItems({"\xC4", "A", "a b", "\xC3\x84", "Z10", "Z1"});
    EXPECT_EQ(ItemsOf(list),
              (Log{"A", "a", "a b", "B", "b", "z", "Z1", "Z10", "\xC3\x84", "\xC3\xA4", "\xC4"}));
    for (const char* text : {"b", "B", "a"}) combo.AddItem(text);
    EXPECT_EQ(combo.List(0) + combo.List(1) + combo.List(2), "aBb");
}

TEST_F(FormsTest, SelectionAndCurrentRowStayWithTheirItems) {
    ShowMain();
    list.AddItems({"b", "d", "f"});
    EXPECT_TRUE(headless::Select(list, {"b", "d"}));
    list.AddItems({"a", "c", "e"});
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_TRUE(list.Selected(1) && list.Selected(3) && list.SelCount() == 2);
    other.AddItems({"bb", "x"});
    EXPECT_TRUE(headless::Select(other, {"bb"}));
    EXPECT_TRUE(list.MoveItemsTo(other, [](int i) { return i < 3 || i == 4; }));
    EXPECT_EQ(ItemsOf(other), (Log{"a", "b", "bb", "c", "e", "x"}));
    EXPECT_TRUE(other.ListIndex() == 2 && other.Selected(2) && other.SelCount() == 1);
    EXPECT_EQ(ItemsOf(list), (Log{"d", "f"}));
    EXPECT_TRUE(list.ListIndex() == 0 && list.Selected(0) && list.SelCount() == 1);
}

TEST_F(FormsTest, ListHoldsAtMost32767Items) {
    Log texts;
    for (int i = 0; i < 32768; ++i) texts.push_back(std::to_string(100000 - i));
    EXPECT_THROW(list.AddItems(texts), std::length_error);
    EXPECT_EQ(list.ListCount(), 32767);
    other.AddItems({"a"});
    EXPECT_THROW(other.MoveItemsTo(list, [](int) { return true; }), std::length_error);
    EXPECT_EQ(ItemsOf(other), Log{"a"});
    EXPECT_EQ(list.List(1), "67234") << "the last one stayed out";
}

}  // namespace
}  // namespace halvenmoor::forms
