#include "forms/combo_box.h"

#include "forms/desktop.h"

namespace halvenmoor::forms {

ComboBox::ComboBox(Design design)
    : Control(ControlKind::ComboBox, std::move(design)),
      items_(Owner().Owner().ListOrder()),
      text_(AtDesign().text) {
}

void ComboBox::SetListIndex(int index) {
    if (index == listIndex_) return;
    text_ = index >= 0 ? List(index) : std::string();
    listIndex_ = index;
    Changed();
    Desktop::Raise(OnClick);
}

void ComboBox::AddItem(std::string text) {
    const int position = items_.Add(std::move(text));
    if (position <= listIndex_) ++listIndex_;
    ++itemsVersion_;
    Changed();
}

void ComboBox::Clear() {
    items_.Clear();
    listIndex_ = -1;
    text_.clear();
    ++itemsVersion_;
    Changed();
}

bool ComboBox::UserChoose(int index) {
    if (index < 0 || index >= ListCount()) return false;
    return Desktop::Deliver(*this, [&] {
        SetFocus();
        if (index != listIndex_) return SetListIndex(index);
        Changed();  // the view may show the choice otherwise
        Desktop::Raise(OnClick);
    });
}

bool ComboBox::UserTyped(std::string text) {
    return Desktop::Deliver(*this, [&] {
        SetFocus();
        text_ = std::move(text);
        listIndex_ = -1;
        Changed();
        Desktop::Raise(OnChange);
    });
}

}  // namespace halvenmoor::forms
