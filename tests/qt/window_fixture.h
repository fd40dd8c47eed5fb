#pragma once

#include "forms/combo_box.h"
#include "forms/desktop.h"
#include "forms/list_box.h"
#include "platform/headless/services.h"
#include "platform/qt/windows/form_window.h"
#include "platform/qt/windows/toolkit.h"

#include <QApplication>
#include <QListView>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace halvenmoor::qt {

inline QWidget& WidgetOf(const forms::Form& form) {
    return dynamic_cast<QWidget&>(*form.GetView());
}
inline QWidget& WidgetOf(const forms::Control& control) {
    return *WidgetOf(control.Owner()).findChild<QWidget*>(QString::fromStdString(control.Name()));
}

inline QString ToolTipOf(const QWidget& widget) {
    return QTextDocumentFragment::fromHtml(widget.toolTip()).toPlainText();
}

inline QPoint CentreOfRow(const QListView& list, int row) {
    return list.visualRect(list.model()->index(row, 0)).center();
}

/// A window with a control of each kind.
struct SampleForm : forms::Form {
    explicit SampleForm(forms::Desktop& desktop, bool closeBox = true)
        : Form(desktop,
               {.name = "sample", .title = "Sample", .width = 6000, .height = 6000, .closeBox = closeBox}) {
        SetCancelButton(&cancel);
        const auto hearClicks = [this](auto&... controls) {
            ((controls.OnClick = [this, &controls] { heard.push_back(controls.Name()); }), ...);
        };
        hearClicks(first, cancel, check, optionA, optionB, left, right, combo);
        combo.OnChange = [this] {
            heard.push_back("change " + combo.Text());
            combo.SetListIndex(0);
        };
    }

    void Activate() override {
        heard.push_back("activate");
        if (script) script();
    }

    forms::Frame frame{*this, {.name = "frame", .bounds = {3000, 0, 2900, 1500}, .text = "A & B"}};
    forms::Label label{
        *this, {.name = "label", .bounds = {150, 300, 1500, 300}, .text = "<b>a</b> & b", .frame = &frame}};
    forms::CommandButton first{*this,
                               {.name = "first", .bounds = {0, 0, 1200, 375}, .tab = 1, .text = "&Go"}};
    forms::CommandButton cancel{*this, {.name = "cancel", .bounds = {1500, 0, 1200, 375}, .tab = 2}};
    forms::CheckBox check{*this, {.name = "check", .bounds = {0, 450, 1500, 300}, .tab = 3, .text = "On"}};
    forms::OptionButton optionA{*this,
                                {.name = "optionA", .bounds = {0, 900, 1500, 300}, .tab = 4, .on = true}};
    forms::OptionButton optionB{*this, {.name = "optionB", .bounds = {0, 1200, 1500, 300}, .tab = 5}};
    forms::ListBox left{*this, {.name = "left", .bounds = {0, 1650, 2400, 1500}, .tab = 6}};
    forms::ListBox right{*this, {.name = "right", .bounds = {3000, 1650, 2400, 1500}, .tab = 7}};
    forms::ComboBox combo{*this, {.name = "combo", .bounds = {0, 3300, 2400, 315}, .tab = 8, .text = "Pick"}};
    forms::TextBox text{*this, {.name = "text", .bounds = {0, 3750, 2400, 315}, .tab = 9}};
    forms::PictureBox picture{*this, {.name = "picture", .bounds = {0, 4200, 1500, 750}, .bordered = true}};

    std::vector<std::string> heard;
    /// What happens once the form is on the screen.
    std::function<void()> script;
};

/// A sample window on the screen, with what it has heard so far forgotten.
class Window : public testing::Test {
protected:
    Window() {
        desktop.Show(form);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Root()));
        form.heard.clear();
    }

    QWidget& Root() { return WidgetOf(form); }
    template <class Kind = QWidget>
    Kind& Find(const char* name) {
        return *Root().findChild<Kind*>(name);
    }
    void Click(const char* name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
    std::vector<std::string> Heard() { return std::exchange(form.heard, {}); }

    using Words = std::vector<std::string>;

    headless::FixedLocale locale;
    QtToolkit toolkit{locale};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    SampleForm form{desktop};
};

}  // namespace halvenmoor::qt
