// Captions that are too wide for their controls, and whether those of the languages fit.

#include "platform/qt/windows/caption.h"

#include "all_windows.h"
#include "platform/qt/windows/conversions.h"

#include <QFontInfo>
#include <map>
#include <set>

namespace halvenmoor::qt {
namespace {

QString ShownText(const forms::Control& control) {
    return WidgetOf(control)
        .property(control.Kind() == forms::ControlKind::Frame ? "title" : "text")
        .toString();
}

TEST_F(Window, CaptionIsNarrowedBeforeItIsCut) {
    for (forms::Control* const control : std::initializer_list<forms::Control*>{
             &form.label, &form.frame, &form.first, &form.check, &form.optionA}) {
        SCOPED_TRACE(control->Name());
        const QWidget& widget = WidgetOf(*control);
        std::string caption;
        const auto lengthen = [&] {
            control->SetCaption(caption += "i");
            desktop.Yield();
        };
        const auto isWhole = [&] { return ShownText(*control).toStdString() == caption; };
        do lengthen();
        while (widget.font().stretch() == 100 && caption.size() < 80);
        EXPECT_TRUE(isWhole());
        EXPECT_EQ(widget.toolTip(), "");
        const std::size_t atFirst = caption.size();
        do lengthen();
        while (isWhole() && caption.size() < 99);
        EXPECT_GT(caption.size(), atFirst + 2);
        EXPECT_EQ(widget.font().stretch(), 85);
        EXPECT_TRUE(ShownText(*control).endsWith(u"i\u2026"));
        EXPECT_EQ(ToolTipOf(widget).toStdString(), caption);
        control->SetCaption("i");
        desktop.Yield();
        EXPECT_EQ(widget.font().stretch(), 100);
        EXPECT_EQ(widget.toolTip(), "");
    }
}

/// What lies around the captions of each kind of control, estimated with care.
const std::map<forms::ControlKind, QMargins> kBorders{{forms::ControlKind::Label, {}},
                                                      {forms::ControlKind::Frame, {11, 0, 11, 0}},
                                                      {forms::ControlKind::CommandButton, {4, 4, 4, 4}},
                                                      {forms::ControlKind::CheckBox, {20, 0, 0, 0}},
                                                      {forms::ControlKind::OptionButton, {20, 0, 0, 0}}};

void ExpectAllFits(forms::Form& form) {
    form.Owner().Yield();
    for (const forms::Control* control : form.Controls()) {
        const forms::ControlKind kind = control->Kind();
        const auto borders = kBorders.find(kind);
        if (borders == kBorders.end() || control->AtDesign().glyph != forms::Glyph::None) continue;
        const QWidget& widget = WidgetOf(*control);
        const QRect whole = kind == forms::ControlKind::Label ? widget.contentsRect() : widget.rect();
        const QRect contents = whole.marginsRemoved(borders->second);
        const bool isOneLine = kind == forms::ControlKind::Frame || kind == forms::ControlKind::CommandButton;
        const auto lines = isOneLine ? Qt::TextSingleLine : Qt::TextWordWrap;
        const QRect words = QFontMetrics(widget.font()).boundingRect(contents, lines, ShownText(*control));
        EXPECT_EQ(ShownText(*control).toStdString(), control->Caption()) << control->Name();
        EXPECT_TRUE(contents.contains(words))
            << control->Caption() << " is " << words.width() << " x " << words.height() << ", has "
            << contents.width() << " x " << contents.height();
    }
    const QWidget& window = WidgetOf(form);
    EXPECT_LE(window.fontMetrics().horizontalAdvance(window.windowTitle()), window.width());
}

TEST_F(AllWindows, HaveRoomForEveryCaption) {
    const std::string font = QFontInfo(ToFont({})).family().toStdString();
    EXPECT_TRUE(font == "Verdana" || font == "DejaVu Sans") << font;
    std::set<std::string> words;
    for (int i = 0; i < Form().LanguageList.ListCount(); ++i) {
        EXPECT_TRUE(Form().LanguageList.UserChoose(i));
        SCOPED_TRACE(Form().LanguageList.Text());
        words.insert(Form().LabelSelectLanguage.Caption());
        LookAtAllWindows(ExpectAllFits);
    }
    EXPECT_GE(words.size(), 23U) << "some languages did not show";
}

}  // namespace
}  // namespace halvenmoor::qt
