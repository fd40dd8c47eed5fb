#pragma once

#include "forms/desktop.h"
#include "forms/layout.h"
#include "platform/fakes/services.h"
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
struct SampleForm : forms::Layout {
    explicit SampleForm(forms::Desktop& desktop, bool closeBox = true)
        : Layout(desktop,
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

    forms::Frame frame{Row("frame", {3000, 0, 2900, 1500}, 0, "A & B")};
    forms::Label label{Row("label", {150, 300, 1500, 300}, 0, "<b>a</b> & b").In(frame)};
    forms::CommandButton first{Row("first", {0, 0, 1200, 375}, 1, "&Go")};
    forms::CommandButton cancel{Row("cancel", {1500, 0, 1200, 375}, 2)};
    forms::CheckBox check{Row("check", {0, 450, 1500, 300}, 3, "On")};
    forms::OptionButton optionA{Row("optionA", {0, 900, 1500, 300}, 4).On()};
    forms::OptionButton optionB{Row("optionB", {0, 1200, 1500, 300}, 5)};
    forms::ListBox left{Row("left", {0, 1650, 2400, 1500}, 6)};
    forms::ListBox right{Row("right", {3000, 1650, 2400, 1500}, 7)};
    forms::ComboBox combo{Row("combo", {0, 3300, 2400, 315}, 8, "Pick")};
    forms::TextBox text{Row("text", {0, 3750, 2400, 315}, 9)};
    forms::PictureBox picture{Row("picture", {0, 4200, 1500, 750}, 0).Bordered()};

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

    fakes::FixedLocale locale;
    QtToolkit toolkit{locale};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    SampleForm form{desktop};
};

}  // namespace halvenmoor::qt
