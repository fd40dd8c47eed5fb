#pragma once

#include "platform/qt/windows/control_view.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <type_traits>

namespace halvenmoor::qt {

/// A push button with words or with a glyph drawn in the colour of its words.
class GlyphButton : public QPushButton {
public:
    explicit GlyphButton(QWidget* parent) : QPushButton(parent) {}

    void SetGlyph(forms::Glyph glyph) { glyph_ = glyph; }
    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    forms::Glyph glyph_ = forms::Glyph::None;
};

/// A check box or radio button that breaks its words into lines and takes clicks anywhere in its place.
template <class Base>
class WrappingToggle : public Base {
public:
    explicit WrappingToggle(QWidget* parent) : Base(parent) {}

    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return this->rect().contains(position); }

private:
    static constexpr bool kIsCheckBox = std::is_same_v<Base, QCheckBox>;
};

class CommandButtonView : public ViewOf<forms::CommandButton, GlyphButton> {
public:
    CommandButtonView(forms::CommandButton& button, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

class CheckBoxView : public ViewOf<forms::CheckBox, WrappingToggle<QCheckBox>> {
public:
    CheckBoxView(forms::CheckBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

/// Buttons with the same parent are one group, as in the form; so Qt lets the arrow keys move in it.
class OptionButtonView : public ViewOf<forms::OptionButton, WrappingToggle<QRadioButton>> {
public:
    OptionButtonView(forms::OptionButton& button, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
